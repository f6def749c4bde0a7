// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "NotepadActions.h"

#include <QActionGroup>
#include <QFile>
#include <QIcon>
#include <QMenu>
#include <QShortcut>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

/// Null for commands that are on no button and in no menu.
QIcon icon(const QString &name)
{
    const QString path = u":/notepad/%1.svg"_s.arg(name);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

} // namespace

NotepadActions::NotepadActions(QWidget *window) : QObject(window), m_window(window)
{
    // Resources in a static library need this call.
    Q_INIT_RESOURCE(notepad);
    createFileActions();
    createEditActions();
    createInsertActions();
    createFormatActions();
    createStyleActions();
    createFindActions();
    createShowActions();
    createZoomActions();
    createCaseActions();
    createLineActions();
    help = create(u"help"_s, tr("Keyboard Shortcuts"), u"F1"_s,
                  tr("Lists all commands with their keys"));
}

void NotepadActions::createFileActions()
{
    newFile = create(u"new"_s, tr("New"), u"Ctrl+N"_s, tr("Starts with an empty text"));
    open = create(u"open"_s, tr("Open"), u"Ctrl+O"_s, tr("Opens a text file"));
    reload = create(u"reload"_s, tr("Reload"), u"F5"_s,
                    tr("Reads the file again as it is on the disk"));
    save = create(u"save"_s, tr("Save"), u"Ctrl+S"_s, tr("Writes the text to its file"));
    saveAs = create(u"saveAs"_s, tr("Save As…"), u"Ctrl+Shift+S"_s,
                    tr("Writes the text to another file"));
    saveCopy = create(u"saveCopy"_s, tr("Save a Copy…"), u"Ctrl+Alt+S"_s,
                      tr("Writes the text to another file and goes on with this one"));
    close = create(u"close"_s, tr("Close"), u"Ctrl+Q"_s, tr("Closes the window"));
    saveMenu = createMenu(u"save"_s, tr("Save"), u"Alt+Shift+S"_s,
                          tr("Writes the text to its file (Ctrl+S)"));
    saveMenu->addActions({save, saveAs, saveCopy});
    connect(saveMenu->menuAction(), &QAction::triggered, save, &QAction::trigger);
}

void NotepadActions::createEditActions()
{
    undo = create(u"undo"_s, tr("Undo"), u"Ctrl+Z"_s, tr("Takes the last change back"));
    redo = create(u"redo"_s, tr("Redo"), u"Ctrl+Shift+Z"_s,
                  tr("Repeats the change that was taken back"));
    redo->setShortcuts({u"Ctrl+Shift+Z"_s, u"Ctrl+Y"_s});
    cut = create(u"cut"_s, tr("Cut"), u"Ctrl+X"_s, tr("Moves the selected text to the clipboard"));
    copy = create(u"copy"_s, tr("Copy"), u"Ctrl+C"_s,
                  tr("Copies the selected text to the clipboard"));
    paste = create(u"paste"_s, tr("Paste"), u"Ctrl+V"_s, tr("Inserts the text of the clipboard"));
    selectAll = create(u"selectAll"_s, tr("Select All"), u"Ctrl+A"_s, tr("Selects the whole text"));
}

void NotepadActions::createInsertActions()
{
    insertDate = create(u"insertDate"_s, tr("Date"), u"Ctrl+I, D"_s, tr("Inserts today's date"));
    insertTime = create(u"insertTime"_s, tr("Time"), u"Ctrl+I, T"_s, tr("Inserts the time of day"));
    insertDateTime = create(u"insertDateTime"_s, tr("Date and Time"), u"Ctrl+I, I"_s,
                            tr("Inserts date and time in the international form"));
    insertFileName = create(u"insertFileName"_s, tr("File Name"), u"Ctrl+I, F"_s,
                            tr("Inserts the name of this file"));
    insertMenu = createMenu(u"insert"_s, tr("Insert"), u"Alt+I"_s,
                            tr("Inserts something at the cursor"));
    insertMenu->addActions({insertDate, insertTime, insertDateTime});
    insertMenu->addSeparator();
    insertMenu->addAction(insertFileName);
}

void NotepadActions::createFormatActions()
{
    lineEndLf = createToggle(u"lineEndLf"_s, tr("Unix Line Ends (LF)"), u"Ctrl+L, U"_s,
                             tr("Saves every line with a line feed at its end"));
    lineEndCrLf = createToggle(
        u"lineEndCrLf"_s, tr("Windows Line Ends (CRLF)"), u"Ctrl+L, W"_s,
        tr("Saves every line with a carriage return and a line feed at its end"));
    byteOrderMark = createToggle(
        u"byteOrderMark"_s, tr("Byte Order Mark"), u"Ctrl+L, B"_s,
        tr("Saves the mark that tells some programs that a file is UTF-8"));
    formatMenu = createMenu(u"format"_s, tr("Format"), u"Alt+O"_s,
                            tr("How the text is written to the file"));
    formatMenu->addActions({lineEndLf, lineEndCrLf});
    formatMenu->addSeparator();
    formatMenu->addAction(byteOrderMark);
    auto *lineEnds = new QActionGroup(this);
    lineEnds->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    lineEnds->addAction(lineEndLf);
    lineEnds->addAction(lineEndCrLf);
}

void NotepadActions::createStyleActions()
{
    clearStyles = create(u"clearStyles"_s, tr("Clear\nStyles"), u"Ctrl+\\"_s,
                         tr("Makes the selected text plain, or else this paragraph"));
}

void NotepadActions::createFindActions()
{
    find = create(u"find"_s, tr("Find"), u"Ctrl+F"_s, tr("Looks for a text"));
    replace = create(u"replace"_s, tr("Replace"), u"Ctrl+H"_s,
                     tr("Looks for a text to put another in its place"));
    quickFind = create(u"quickFind"_s, tr("Quick Find"), u"Alt+Q"_s,
                       tr("Looks for a text from the field in the corner"));
    findNext = create(u"findNext"_s, tr("Find Next"), u"F3"_s, tr("Selects the next place"));
    findPrevious = create(u"findPrevious"_s, tr("Find Previous"), u"Shift+F3"_s,
                          tr("Selects the place before"));
    replaceNext = create(u"replaceOne"_s, tr("Replace\nNext"), u"Ctrl+Shift+H"_s,
                         tr("Replaces the selected place and selects the next one"));
    replaceAll = create(u"replaceAll"_s, tr("Replace\nAll"), u"Ctrl+Alt+H"_s,
                        tr("Replaces all places at once"));
    matchCase = createToggle(u"matchCase"_s, tr("Match Case"), u"Alt+C"_s,
                             tr("Tells capital letters from small ones"));
    wholeWords = createToggle(u"wholeWords"_s, tr("Whole Words"), u"Alt+W"_s,
                              tr("Finds no places inside longer words"));
    goToLine = create(u"goToLine"_s, tr("Go to Line"), u"Ctrl+G"_s,
                      tr("Moves to the line of a number"));
}

void NotepadActions::createShowActions()
{
    wordWrap = createToggle(u"wordWrap"_s, tr("Word\nWrap"), u"Alt+Z"_s,
                            tr("Breaks lines at the window's edge"));
    lineNumbers = createToggle(u"lineNumbers"_s, tr("Line\nNumbers"), u"Alt+L"_s,
                               tr("Numbers the lines"));
    currentLine = createToggle(u"currentLine"_s, tr("Current Line"), u"Alt+Shift+L"_s,
                               tr("Colours the line of the cursor"));
    whiteSpace = createToggle(u"whiteSpace"_s, tr("White Space"), u"Alt+P"_s,
                              tr("Shows spaces and tabs"));
    fullScreen = createToggle(u"fullScreen"_s, tr("Full\nScreen"), u"F11"_s,
                              tr("Fills the screen"));
}

void NotepadActions::createZoomActions()
{
    chooseFont = create(u"font"_s, tr("Font"), u"Ctrl+Shift+F"_s, tr("Goes to the list of fonts"));
    bold = createToggle(u"bold"_s, tr("Bold"), u"Ctrl+B"_s, tr("Shows the text in bold type"));
    fontLarger = create(u"fontLarger"_s, tr("Larger Font"), u"Ctrl+Shift+."_s,
                        tr("Shows the text in larger type"));
    fontSmaller = create(u"fontSmaller"_s, tr("Smaller Font"), u"Ctrl+Shift+,"_s,
                         tr("Shows the text in smaller type"));
    zoomIn = create(u"zoomIn"_s, tr("Zoom In"), u"Ctrl++"_s, tr("Shows the text larger"));
    zoomIn->setShortcuts({u"Ctrl++"_s, u"Ctrl+="_s});
    zoomOut = create(u"zoomOut"_s, tr("Zoom Out"), u"Ctrl+-"_s, tr("Shows the text smaller"));
    zoomReset = create(u"zoomReset"_s, tr("Actual Size"), u"Ctrl+0"_s,
                       tr("Shows the text in the size of its font"));
}

void NotepadActions::createCaseActions()
{
    upperCase = create(u"upperCase"_s, tr("Upper Case"), u"Ctrl+T, U"_s,
                       tr("Turns all letters into capitals"));
    lowerCase = create(u"lowerCase"_s, tr("Lower Case"), u"Ctrl+T, L"_s,
                       tr("Turns all letters into small ones"));
    titleCase = create(u"titleCase"_s, tr("Title Case"), u"Ctrl+T, T"_s,
                       tr("Starts each word with a capital"));
}

void NotepadActions::createLineActions()
{
    sortLines = create(u"sortLines"_s, tr("Sort"), u"Ctrl+T, S"_s,
                       tr("Sorts the lines by the alphabet"));
    reverseLines = create(u"reverseLines"_s, tr("Reverse"), u"Ctrl+T, R"_s,
                          tr("Puts the last line first"));
    removeDuplicates = create(u"removeDuplicates"_s, tr("Remove Duplicates"), u"Ctrl+T, D"_s,
                              tr("Keeps the first of equal lines"));
    joinLines = create(u"joinLines"_s, tr("Join Lines"), u"Ctrl+T, J"_s,
                       tr("Makes one line of all"));
    indent = create(u"indent"_s, tr("Increase Indent"), u"Ctrl+]"_s,
                    tr("Moves the lines four spaces inward"));
    outdent = create(u"outdent"_s, tr("Decrease Indent"), u"Ctrl+["_s,
                     tr("Moves the lines four spaces outward"));
    trim = create(u"trim"_s, tr("Trim Line Ends"), u"Ctrl+T, E"_s,
                  tr("Drops spaces and tabs at the ends of lines"));
}

QAction *NotepadActions::create(const QString &name, const QString &text, const QString &shortcut,
                                const QString &tip)
{
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    action->setIcon(icon(name));
    action->setShortcut(shortcut);
    setTexts(action, text, shortcut, tip);
    m_window->addAction(action);
    return action;
}

QAction *NotepadActions::createToggle(const QString &name, const QString &text,
                                      const QString &shortcut, const QString &tip)
{
    QAction *action = create(name, text, shortcut, tip);
    action->setCheckable(true);
    return action;
}

QMenu *NotepadActions::createMenu(const QString &name, const QString &title,
                                  const QString &shortcut, const QString &tip)
{
    auto *menu = new QMenu(title, m_window);
    menu->setObjectName(name + u"Menu"_s);
    menu->setIcon(icon(name));
    menu->setToolTipsVisible(true);
    setTexts(menu->menuAction(), title, shortcut, tip);
    auto *keys = new QShortcut(QKeySequence(shortcut), m_window);
    connect(keys, &QShortcut::activated, this, [this, menu] { Q_EMIT menuRequested(menu); });
    return menu;
}

void NotepadActions::setTexts(QAction *action, const QString &text, const QString &shortcut,
                              const QString &tip)
{
    const QString keys = QKeySequence(shortcut).toString(QKeySequence::NativeText);
    const QString plainText = QString(text).replace(u'\n', u' ');
    action->setToolTip(tr("%1 (%2)\n%3", "command, keys, what it does").arg(plainText, keys, tip));
    action->setStatusTip(tip);
}
