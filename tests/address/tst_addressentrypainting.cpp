// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/AddressEntry.h"
#include "address/FolderTree.h"

#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QEnterEvent>
#include <QIcon>
#include <QMenu>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

enum class Kind { Root, Parent, Leaf };
/// Where the pointer is.
enum class Over { Nothing, Name, Arrow };

constexpr QColor Line(51, 51, 51);
constexpr QColor Normal(255, 255, 255);
constexpr QColor Secondary(245, 245, 245);
constexpr QColor Pressed(217, 217, 217);
constexpr QColor PressedSecondary(180, 222, 255);

struct Look
{
    bool hasArrow() const { return kind != Kind::Leaf; }
    bool isSplit() const { return kind == Kind::Parent; }
    QColor active() const { return isDown ? Pressed : Normal; }

    Kind kind = Kind::Leaf;
    Over over = Over::Nothing;
    bool isDown = false;
    int ratio = 1;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// An entry with a name of a few letters, in the state of a look.
class Scene
{
public:
    explicit Scene(const Look &look) : m_look(look)
    {
        m_entry.setLayoutDirection(look.direction);
        if (look.kind != Kind::Root)
            m_entry.setName(m_name);
        const QString folder = look.kind == Kind::Leaf ? u"parent/child"_s : u"parent"_s;
        m_entry.setPath(look.kind == Kind::Root ? QString() : m_tree.path(folder));
        if (look.over != Over::Nothing) {
            const QPointF at = look.over == Over::Arrow ? arrowPart().center() : QPoint(8, 8);
            const QPointF position = look.over == Over::Arrow ? at
                                                              : mirrored({8, 8, 1, 1}).center();
            QEnterEvent event(position, position, position);
            QCoreApplication::sendEvent(&m_entry, &event);
        }
        m_entry.setDown(look.isDown);
    }

    QRect mirrored(QRect rect) const
    {
        if (m_look.direction == Qt::RightToLeft)
            rect.moveLeft(m_entry.width() - rect.x() - rect.width());
        return rect;
    }
    int nameWidth() const { return m_entry.fontMetrics().horizontalAdvance(m_name); }
    int separator() const { return 4 + 6 + nameWidth(); }
    QRect whole() const { return m_entry.rect(); }
    QRect name() const { return mirrored({4, 0, nameWidth(), 22}); }
    QRect namePart() const { return mirrored({0, 0, separator(), 22}); }
    QRect arrowPart() const { return mirrored({m_entry.width() - 16, 0, 16, 22}); }
    QRect arrow() const { return mirrored({m_entry.width() - 12, 7, 8, 8}); }
    QList<QRect> lines() const
    {
        QList<QRect> lines{mirrored({0, 0, 1, 22}), mirrored({m_entry.width() - 1, 0, 1, 22})};
        if (m_look.isSplit())
            lines.append(mirrored({separator(), 0, 1, 22}));
        return lines;
    }
    /// What covers the background.
    QList<QRect> ink() const
    {
        QList<QRect> ink;
        if (m_look.over != Over::Nothing)
            ink += lines();
        if (m_look.kind != Kind::Root)
            ink.append(name().adjusted(-1, 0, 1, 0));
        if (m_look.hasArrow())
            ink.append(arrow());
        return ink;
    }

    QImage image() { return ImageChecks::rendered(&m_entry, m_look.ratio); }
    AddressEntry *entry() { return &m_entry; }

private:
    const QString m_name = u"Folder"_s;
    const Look m_look;
    const FolderTree m_tree{{u"parent/child"_s}};
    AddressEntry m_entry{nullptr};
};

template <typename Condition>
void addLooks(Condition condition)
{
    QTest::addColumn<Look>("look");
    const QList<std::pair<Kind, const char *>> kinds{
        {Kind::Root, "root"}, {Kind::Parent, "parent"}, {Kind::Leaf, "leaf"}};
    const QList<std::pair<Over, const char *>> overs{
        {Over::Nothing, "not hovered"}, {Over::Name, "name"}, {Over::Arrow, "arrow"}};
    for (const auto &[kind, kindName] : kinds) {
        for (const auto &[over, overName] : overs) {
            for (const bool isDown : {false, true}) {
                for (const int ratio : {1, 2}) {
                    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                        const Look look{kind, over, isDown, ratio, direction};
                        if (condition(look)) {
                            QTest::addRow("%s, %s, %s, ratio %d, %s", kindName, overName,
                                          isDown ? "pressed" : "up", ratio,
                                          direction == Qt::LeftToRight ? "left to right"
                                                                       : "right to left")
                                << look;
                        }
                    }
                }
            }
        }
    }
}

/// The root's arrow is all of it, and a leaf has none.
bool isPossible(const Look &look)
{
    return (look.kind != Kind::Root || look.over != Over::Name)
           && (look.kind != Kind::Leaf || look.over != Over::Arrow);
}

} // namespace

class tst_AddressEntryPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyHoveredEntriesHaveABackground_data();
    void onlyHoveredEntriesHaveABackground();
    void theParts_data();
    void theParts();
    void theSeparators_data();
    void theSeparators();
    void theNameStandsInItsRectangle_data();
    void theNameStandsInItsRectangle();
    void theArrowIsCrisp_data();
    void theArrowIsCrisp();
    void rightToLeftIsTheMirrorImage_data();
    void rightToLeftIsTheMirrorImage();
    void leavesHaveNoArrow();
    void ampersandsArePainted();
    void newlinesArePaintedAsSpaces();
    void shortenedNamesStayBesideTheArrow();
    void theHighlightFollowsThePointer();
    void closingTheMenuEndsTheHighlight();
};

void tst_AddressEntryPainting::onlyHoveredEntriesHaveABackground_data()
{
    addLooks([](const Look &look) { return isPossible(look) && look.over == Over::Nothing; });
}

void tst_AddressEntryPainting::onlyHoveredEntriesHaveABackground()
{
    QFETCH(const Look, look);
    Scene scene(look);
    VERIFY_IMAGE(
        ImageChecks::isFilled(scene.image(), scene.whole(), ImageChecks::Untouched, scene.ink()));
}

void tst_AddressEntryPainting::theParts_data()
{
    addLooks([](const Look &look) { return isPossible(look) && look.over != Over::Nothing; });
}

void tst_AddressEntryPainting::theParts()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const QImage image = scene.image();
    if (!look.isSplit()) {
        VERIFY_IMAGE(ImageChecks::isFilled(image, scene.whole(), look.active(), scene.ink()));
        return;
    }
    const bool isOverArrow = look.over == Over::Arrow;
    const QColor other = look.isDown ? PressedSecondary : Secondary;
    VERIFY_IMAGE(ImageChecks::isFilled(image, scene.namePart(), isOverArrow ? other : look.active(),
                                       scene.ink()));
    VERIFY_IMAGE(ImageChecks::isFilled(image, scene.arrowPart(),
                                       isOverArrow ? look.active() : Secondary, scene.ink()));
}

void tst_AddressEntryPainting::theSeparators_data()
{
    theParts_data();
}

void tst_AddressEntryPainting::theSeparators()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const QImage image = scene.image();
    const QList<QRect> lines = scene.lines();
    for (const QRect &line : lines)
        VERIFY_IMAGE(ImageChecks::isFilled(image, line, Line));
}

void tst_AddressEntryPainting::theNameStandsInItsRectangle_data()
{
    addLooks([](const Look &look) {
        return isPossible(look) && look.over == Over::Nothing && look.kind != Kind::Root;
    });
}

void tst_AddressEntryPainting::theNameStandsInItsRectangle()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const QImage image = scene.image();
    VERIFY_IMAGE(ImageChecks::contains(image, scene.name(), Qt::black));
    const QRect painted = ImageChecks::paintedRect(image, scene.name().adjusted(-4, 0, 4, 0));
    QVERIFY(scene.name().adjusted(-1, 0, 1, 0).contains(painted));
    QVERIFY(painted.width() >= scene.name().width() - 4);
    QVERIFY(qAbs(painted.center().y() - scene.name().center().y()) <= 2);
}

void tst_AddressEntryPainting::theArrowIsCrisp_data()
{
    addLooks([](const Look &look) {
        return isPossible(look) && look.hasArrow()
               && (look.over == Over::Nothing || look.kind == Kind::Root);
    });
}

void tst_AddressEntryPainting::theArrowIsCrisp()
{
    QFETCH(const Look, look);
    Scene scene(look);
    const bool isOpen = look.isDown && look.over == Over::Arrow;
    QImage expected = ImageChecks::blank(scene.whole().size(), look.ratio);
    QPainter painter(&expected);
    if (look.over != Over::Nothing)
        painter.fillRect(scene.whole(), look.active());
    QImage arrow = QIcon(isOpen ? u":/res/arrowDown.svg"_s : u":/res/arrowRight.svg"_s)
                       .pixmap(QSize(8, 8), look.ratio)
                       .toImage();
    painter.drawImage(scene.arrow(), arrow.mirrored(look.direction == Qt::RightToLeft, false));
    painter.end();
    VERIFY_IMAGE(ImageChecks::isSame(scene.image(), expected, scene.arrow()));
}

void tst_AddressEntryPainting::rightToLeftIsTheMirrorImage_data()
{
    addLooks(
        [](const Look &look) { return isPossible(look) && look.direction == Qt::RightToLeft; });
}

void tst_AddressEntryPainting::rightToLeftIsTheMirrorImage()
{
    QFETCH(const Look, look);
    Look other = look;
    other.direction = Qt::LeftToRight;
    Scene scene(look);
    Scene mirrored(other);
    const QList<QRect> except = look.kind == Kind::Root
                                    ? QList<QRect>()
                                    : QList<QRect>{scene.name().adjusted(-1, 0, 1, 0)};
    VERIFY_IMAGE(ImageChecks::isMirrored(scene.image(), mirrored.image(), except, 2));
}

void tst_AddressEntryPainting::leavesHaveNoArrow()
{
    Scene scene({Kind::Leaf});
    QCOMPARE(scene.whole().width(), scene.nameWidth() + 8);
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), {scene.whole().width() - 3, 0, 3, 22},
                                       ImageChecks::Untouched));
}

void tst_AddressEntryPainting::ampersandsArePainted()
{
    AddressEntry marked(nullptr);
    marked.setName(u"a&b"_s);
    AddressEntry plain(nullptr);
    plain.setName(u"ab"_s);
    QVERIFY(marked.width() > plain.width());
    const QRect middle(4 + plain.fontMetrics().horizontalAdvance(u'a'), 0,
                       plain.fontMetrics().horizontalAdvance(u'&'), 22);
    const QRect painted = ImageChecks::paintedRect(ImageChecks::rendered(&marked, 1), middle);
    QVERIFY(painted.width() > middle.width() / 2);
}

void tst_AddressEntryPainting::newlinesArePaintedAsSpaces()
{
    AddressEntry broken(nullptr);
    broken.setName(u"a\nb\tc"_s);
    AddressEntry plain(nullptr);
    plain.setName(u"a b c"_s);
    QCOMPARE(broken.size(), plain.size());
    VERIFY_IMAGE(ImageChecks::isSame(ImageChecks::rendered(&broken, 1),
                                     ImageChecks::rendered(&plain, 1), plain.rect()));
}

void tst_AddressEntryPainting::shortenedNamesStayBesideTheArrow()
{
    Scene scene({Kind::Parent});
    scene.entry()->setName(QString(100, u'W'));
    scene.entry()->setRoom(100);
    const QImage image = scene.image();
    QCOMPARE(scene.whole().width(), 100);
    VERIFY_IMAGE(ImageChecks::contains(image, {4, 0, 74, 22}, Qt::black));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {79, 0, 9, 22}, ImageChecks::Untouched));
}

void tst_AddressEntryPainting::theHighlightFollowsThePointer()
{
    const FolderTree tree({u"parent/child"_s});
    QWidget window;
    window.resize(300, 100);
    auto *entry = new AddressEntry(&window);
    entry->move(50, 30);
    entry->setName(u"parent"_s);
    entry->setPath(tree.path(u"parent"_s));
    QVERIFY(Input::show(&window));
    const QPoint onName(2, 3);
    const QPoint onArrow(entry->width() - 3, 3);
    const auto color = [entry](QPoint at) {
        return ImageChecks::colorAt(ImageChecks::rendered(entry, 1), at);
    };
    Input::move(&window, QPoint(10, 10));
    QCOMPARE(color(onName), ImageChecks::Untouched);
    Input::move(entry, onName);
    QCOMPARE(color(onName), Normal);
    QCOMPARE(color(onArrow), Secondary);
    Input::move(entry, onArrow);
    QCOMPARE(color(onName), Secondary);
    QCOMPARE(color(onArrow), Normal);
    Input::move(entry, onName);
    Input::press(entry, onName);
    QCOMPARE(color(onName), Pressed);
    QCOMPARE(color(onArrow), Secondary);
    Input::release(entry, onName);
    Input::move(&window, QPoint(10, 10));
    QCOMPARE(color(onName), ImageChecks::Untouched);
}

void tst_AddressEntryPainting::closingTheMenuEndsTheHighlight()
{
    Scene scene({Kind::Parent, Over::Name});
    QMenu *menu = scene.entry()->menu();
    menu->popup(QPoint(100, 100));
    VERIFY_IMAGE(ImageChecks::contains(scene.image(), scene.namePart(), Normal));
    menu->hide();
    VERIFY_IMAGE(ImageChecks::isFilled(scene.image(), scene.whole(), ImageChecks::Untouched,
                                       {scene.name().adjusted(-1, 0, 1, 0), scene.arrow()}));
}

QTEST_MAIN(tst_AddressEntryPainting)

#include "tst_addressentrypainting.moc"
