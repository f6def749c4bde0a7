// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressEntry.h"

#include "AddressEntry_p.h"
#include "AddressFolders.h"
#include "AddressPaths.h"

#include "core/SharedIcons.h"

#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace VornFrame {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize BaseSize(22, 22);
/// How much of a name is shown at least.
constexpr int FewLetters = 40;

/// In a menu an ampersand marks the shortcut of an entry, and a tab begins another column.
QString menuText(const QString &name)
{
    return AddressPaths::singleLine(name).replace(u'&', u"&&"_s);
}

void fillMenu(QMenu *menu, const QIcon &icon, const QStringList &names)
{
    for (const QString &name : names) {
        // The name goes in before the action: a menu looks at each change of its actions.
        auto *action = new QAction(icon, menuText(name), menu);
        action->setData(name);
        menu->addAction(action);
    }
}

} // namespace

void AddressEntryPrivate::init()
{
    driveIcon = SharedIcons::standardIcon(QStyle::SP_DriveHDIcon);
    folderIcon = SharedIcons::standardIcon(QStyle::SP_DirIcon);
    pen.setCosmetic(true);
    q_ptr->setMouseTracking(true);
    QObject::connect(q_ptr, &AddressEntry::clicked, q_ptr, [this] {
        const QString clickedPath = path; // the entry may go meanwhile
        Q_EMIT q_ptr->signalClicked(clickedPath);
    });
}

void AddressEntryPrivate::buildMenu()
{
    if (QMenu *old = q_ptr->menu()) {
        q_ptr->setMenu(nullptr);
        old->deleteLater();
    }
    const bool showsDrives = path.isEmpty();
    const QStringList names = showsDrives ? AddressFolders::drives() : AddressFolders::below(path);
    q_ptr->setPopupMode(QToolButton::DelayedPopup);
    if (names.isEmpty() && !showsDrives)
        return;
    auto *menu = new QMenu(q_ptr);
    fillMenu(menu, showsDrives ? driveIcon : folderIcon, names);
    q_ptr->setMenu(menu);
    q_ptr->setPopupMode(showsDrives ? QToolButton::InstantPopup : QToolButton::MenuButtonPopup);
    menu->installEventFilter(q_ptr);
    QObject::connect(menu, &QMenu::aboutToShow, q_ptr, [this] { shortenNames(); });
    QObject::connect(menu, &QMenu::aboutToHide, q_ptr, [this] { setHovered(false); });
    QObject::connect(menu, &QMenu::triggered, q_ptr,
                     [this](const QAction *action) { choose(action); });
}

/// One long name would make the menu wider than the screen and push all others out of sight.
void AddressEntryPrivate::shortenNames() const
{
    constexpr qsizetype LongName = 40;
    constexpr int MaxWidth = 400; // px
    const QMenu *menu = q_ptr->menu();
    const QFontMetrics metrics = menu->fontMetrics();
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        const QString name = AddressPaths::singleLine(action->data().toString());
        if (name.size() > LongName && metrics.horizontalAdvance(name) > MaxWidth)
            action->setText(menuText(metrics.elidedText(name, Qt::ElideMiddle, MaxWidth)));
    }
}

void AddressEntryPrivate::choose(const QAction *action)
{
    const QString name = action->data().toString();
    const QPointer<AddressEntry> guard(q_ptr);
    ++choices;
    Q_EMIT q_ptr->signalClicked(path.isEmpty() ? name : AddressPaths::child(path, name));
    if (guard)
        --choices;
}

/// Under the arrow, but on the screen: a menu can be as high as that.
void AddressEntryPrivate::placeMenu(QMenu *menu) const
{
    const QRect arrow = arrowPart();
    const int x = q_ptr->isRightToLeft() ? arrow.right() + 1 - menu->width() : arrow.left();
    QPoint position = q_ptr->mapToGlobal(QPoint(x, q_ptr->height()));
    // A window can lie on two screens; its own is the one where most of it is.
    const QScreen *ofArrow = QGuiApplication::screenAt(q_ptr->mapToGlobal(arrow.center()));
    const QRect screen = (ofArrow ? ofArrow : q_ptr->screen())->availableGeometry();
    position.rx() = std::max(screen.left(),
                             std::min(position.x(), screen.right() + 1 - menu->width()));
    position.ry() = std::max(screen.top(),
                             std::min(position.y(), screen.bottom() + 1 - menu->height()));
    menu->move(position);
}

bool AddressEntryPrivate::isSplit() const
{
    return q_ptr->menu() != nullptr && q_ptr->popupMode() == QToolButton::MenuButtonPopup;
}

QString AddressEntryPrivate::shownName() const
{
    return AddressPaths::singleLine(q_ptr->text());
}

int AddressEntryPrivate::nameWidth() const
{
    return q_ptr->fontMetrics().horizontalAdvance(shownName());
}

QSize AddressEntryPrivate::sizeFor(int width) const
{
    QSize size = BaseSize;
    if (isSplit())
        size.setWidth(spacing + leftMargin + width + arrowArea.width());
    else if (q_ptr->popupMode() == QToolButton::InstantPopup)
        size.setWidth(arrowArea.width());
    else
        size.setWidth(rightMargin + leftMargin + width);
    return size;
}

void AddressEntryPrivate::applySize()
{
    const int wholeWidth = nameWidth();
    textWidth = std::clamp(room - sizeFor(0).width(), 0, wholeWidth);
    const QSize size = sizeFor(textWidth);
    if (isSplit())
        arrowRect = QRect(QPoint(arrowLeft(), 0), arrowArea);
    else
        arrowRect = q_ptr->menu() ? QRect(QPoint(), size) : QRect();
    // As markup, so that a name is never taken for it.
    const QString markup = u"<span>%1</span>"_s;
    q_ptr->setToolTip(textWidth < wholeWidth ? markup.arg(shownName().toHtmlEscaped()) : QString());
    q_ptr->setFixedSize(size);
    q_ptr->update();
}

void AddressEntryPrivate::setHovered(bool over)
{
    hovered = over;
    q_ptr->update();
}

void AddressEntryPrivate::updateOverArrow(QPoint position)
{
    const bool over = arrowPart().contains(position);
    if (over == overArrow)
        return;
    overArrow = over;
    q_ptr->update();
}

AddressEntry::AddressEntry(QWidget *parent)
    : QToolButton(parent), d_ptr(std::make_unique<AddressEntryPrivate>(this))
{
    Q_D(AddressEntry);
    d->init();
}

AddressEntry::~AddressEntry()
{
    Q_D(AddressEntry);
    QMenu *chosenFrom = menu();
    if (d->choices == 0 || !chosenFrom)
        return;
    // It is a choice in the menu that led here, and the menu goes on when this is done.
    chosenFrom->setParent(nullptr, Qt::Popup);
    chosenFrom->deleteLater();
}

void AddressEntry::setName(const QString &name)
{
    Q_D(AddressEntry);
    setText(name);
    setShortcut({});
    setAccessibleName(name);
    d->applySize();
}

void AddressEntry::setPath(const QString &path)
{
    Q_D(AddressEntry);
    d->path = path;
    setShortcut({});
    if (path.isEmpty())
        setAccessibleName(tr("Drives"));
    d->buildMenu();
    d->applySize();
}

void AddressEntry::setRoom(int width)
{
    Q_D(AddressEntry);
    if (d->room == width)
        return;
    d->room = width;
    d->applySize();
}

QSize AddressEntry::sizeHint() const
{
    Q_D(const AddressEntry);
    return d->sizeFor(d->nameWidth());
}

QSize AddressEntry::minimumSizeHint() const
{
    Q_D(const AddressEntry);
    return d->sizeFor(std::min(d->nameWidth(), FewLetters));
}

bool AddressEntry::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(AddressEntry);
    auto *shown = qobject_cast<QMenu *>(watched);
    if (event->type() == QEvent::Show && shown && shown == menu() && d->isSplit()) {
        d->placeMenu(shown);
        shown->hideTearOffMenu();
        return true;
    }
    return QToolButton::eventFilter(watched, event);
}

void AddressEntry::changeEvent(QEvent *event)
{
    Q_D(AddressEntry);
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        d->applySize();
}

void AddressEntry::enterEvent(QEnterEvent *event)
{
    Q_D(AddressEntry);
    d->setHovered(true);
    d->updateOverArrow(event->position().toPoint());
    QToolButton::enterEvent(event);
}

void AddressEntry::leaveEvent(QEvent *event)
{
    Q_D(AddressEntry);
    d->setHovered(false);
    QToolButton::leaveEvent(event);
}

void AddressEntry::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(AddressEntry);
    d->updateOverArrow(event->position().toPoint());
    QToolButton::mouseMoveEvent(event);
    event->accept();
}

void AddressEntry::mousePressEvent(QMouseEvent *event)
{
    Q_D(AddressEntry);
    // The base class would open the menu by rules of its own.
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    d->setHovered(true);
    setDown(true);
    if (!menu())
        return;
    d->updateOverArrow(event->position().toPoint());
    if (!d->overArrow)
        return;
    d->menuRequested = true;
    showMenu(); // returns when the menu is closed, and the entry may be gone by then
}

void AddressEntry::mouseReleaseEvent(QMouseEvent *event)
{
    QToolButton::mouseReleaseEvent(event);
    // The strip would take a release that nobody wants for a click beside its entries.
    event->accept();
}

void AddressEntry::resizeEvent(QResizeEvent *event)
{
    Q_D(AddressEntry);
    QToolButton::resizeEvent(event);
    d->applySize();
}

} // namespace VornFrame
