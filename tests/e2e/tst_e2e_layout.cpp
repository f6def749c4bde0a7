// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// The panels around the tabs, and what is kept from one start to the next.
class tst_E2eLayout final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPanelIsDraggedToNothingAndComesBack();
    void theViewPageTakesAPanelAwayAndBringsItBack();
    void theNextStartFindsEverythingAgain();
    void aFileThatVanishedMeanwhileIsInTheLog();

private:
    QRect panel(const QString &name) const;
    void dragEdge(const QString &name, int by) const;
    void dragFrame(QPoint from, QPoint by) const;
    void markFavourite() const;
};

/// Where a panel is, once it is shown.
QRect tst_E2eLayout::panel(const QString &name) const
{
    QStringList numbers;
    workbench()->waitFor(u"panel "_s + name, [&numbers](const QString &value) {
        numbers = value.split(u' ');
        return numbers.size() == 4;
    });
    if (numbers.size() != 4)
        return {};
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
            numbers.at(3).toInt()};
}

/// Drags the edge between the tabs and the panel on the left or right.
void tst_E2eLayout::dragEdge(const QString &name, int by) const
{
    const QRect rect = panel(name);
    const QPoint edge(name == "left"_L1 ? rect.right() : rect.left(), rect.center().y());
    person()->drag(edge, edge + QPoint(by, 0));
}

/// Drags the frame of the window to the left and up, until its corner is gone from where it was. The
/// window itself is told of its new place only after that.
void tst_E2eLayout::dragFrame(QPoint from, QPoint by) const
{
    const QString before = workbench()->value(u"window"_s);
    const QPoint corner = workbench()->place(u"widget workbench"_s).bottomRight();
    person()->startDrag(from, from + by);
    // The first movement only tells the window manager that this is no click.
    int movements = 0;
    scene()->steps()->waitUntil(
        [&] {
            person()->move(from + by + QPoint(++movements % 2, 0));
            return scene()->colorAt(corner) == Qt::black;
        },
        [] { return u"the frame of the window cannot be dragged"_s; });
    person()->drop();
    workbench()->waitFor(u"window"_s, [before](const QString &value) { return value != before; });
    workbench()->place(u"widget workbench"_s);
}

/// In the popup of the gallery, which can be seen.
void tst_E2eLayout::markFavourite() const
{
    scene()->click(u"widget popupButton"_s);
    const QRect tile = workbench()->place(u"action filter_blue"_s);
    person()->move(tile.center());
    person()->click(tile.topLeft() + QPoint(9, 9));
    workbench()->waitFor(u"favourites"_s, u"blue"_s);
    person()->press(u"Escape"_s);
    workbench()->waitUntilGone(u"widget galleryPopupMenu"_s);
}

void tst_E2eLayout::aPanelIsDraggedToNothingAndComesBack()
{
    scene()->start({u"folder"_s});
    workbench()->place(u"file readme.txt"_s);
    const QRect before = panel(u"left"_s);
    dragEdge(u"left"_s, -before.width());
    workbench()->waitFor(u"panel left"_s, u"- minimized"_s);
    workbench()->waitUntilGone(u"file readme.txt"_s);
    scene()->click(u"button Folder"_s);
    const QRect after = panel(u"left"_s);
    QVERIFY(after.width() > 50);
    workbench()->place(u"file readme.txt"_s);
    // The button takes it away as well.
    scene()->click(u"button Folder"_s);
    workbench()->waitFor(u"panel left"_s, u"- minimized"_s);
    scene()->leave();
}

void tst_E2eLayout::theViewPageTakesAPanelAwayAndBringsItBack()
{
    scene()->start({u"folder"_s});
    scene()->click(u"button View"_s);
    workbench()->waitFor(u"ribbon page"_s, u"viewPage"_s);
    scene()->click(u"action show_messages"_s);
    workbench()->waitFor(u"panel bottom"_s,
                         [](const QString &value) { return value.startsWith(u'-'); });
    scene()->click(u"action show_messages"_s);
    QVERIFY(panel(u"bottom"_s).height() > 50);
    scene()->leave();
}

void tst_E2eLayout::theNextStartFindsEverythingAgain()
{
    const QStringList keys{
        u"window"_s,     u"folder"_s,        u"section"_s,         u"document"_s,
        u"tabs 0"_s,     u"current tab 0"_s, u"tabs 1"_s,          u"current tab 1"_s,
        u"tabs 2"_s,     u"ribbon page"_s,   u"temporary pages"_s, u"favourites"_s,
        u"panel left"_s, u"panel right"_s,   u"panel bottom"_s,    u"title"_s};
    scene()->start({u"folder/readme.txt"_s, u"folder/notes.md"_s, u"folder/picture.png"_s,
                    u"folder/table.csv"_s, u"other"_s});
    workbench()->waitFor(u"folder"_s, scene()->path(u"other"_s));
    const QRect window = workbench()->place(u"widget workbench"_s);
    // The title bar, and then the lower right corner of the frame.
    dragFrame({window.left() + 200, window.top() - 10}, {-30, -30});
    const QPoint corner = workbench()->place(u"widget workbench"_s).bottomRight();
    dragFrame(corner + QPoint(-4, 4), {-40, -30});
    const int width = panel(u"left"_s).width();
    dragEdge(u"left"_s, -60);
    workbench()->waitFor(u"panel left"_s, [width](const QString &value) {
        return value.section(u' ', 2, 2).toInt() < width - 50;
    });
    dragEdge(u"right"_s, panel(u"right"_s).width());
    workbench()->waitFor(u"panel right"_s, u"- minimized"_s);
    scene()->click(u"section 1"_s);
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    markFavourite();
    scene()->click(u"section 0"_s);
    scene()->click(u"tab 0 0"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/readme.txt"_s));
    QHash<QString, QString> before;
    for (const QString &key : keys)
        before.insert(key, workbench()->value(key));
    QCOMPARE(before.value(u"tabs 0"_s), u"readme.txt | notes.md"_s);
    scene()->leave();
    scene()->start({});
    for (const QString &key : keys)
        workbench()->waitFor(key, before.value(key));
    scene()->leave();
}

void tst_E2eLayout::aFileThatVanishedMeanwhileIsInTheLog()
{
    scene()->start({u"folder/readme.txt"_s, u"folder/notes.md"_s});
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md"_s);
    scene()->leave();
    QVERIFY(QFile::remove(scene()->path(u"folder/notes.md"_s)));
    scene()->start({});
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt"_s);
    workbench()->waitFor(u"message"_s, [this](const QString &value) {
        return value.startsWith(
            u"Warning: “%1” could not be opened."_s.arg(scene()->path(u"folder/notes.md"_s)));
    });
    QCOMPARE(workbench()->value(u"box"_s), QString());
    scene()->leave();
}

QTEST_GUILESS_MAIN(tst_E2eLayout)

#include "tst_e2e_layout.moc"
