// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

class QMenu;
class QWidget;

/// All commands of the program, with their texts, icons and shortcuts. What they do is connected by
/// those who do it; where they stand on the ribbon is said in NotepadRibbon.
class NotepadActions : public QObject
{
    Q_OBJECT

public:
    /// The actions are added to \a window too, so that each shortcut works whatever ribbon page is
    /// shown.
    explicit NotepadActions(QWidget *window);

    QAction *newFile = nullptr;
    QAction *open = nullptr;
    QAction *reload = nullptr;
    QAction *save = nullptr;
    QAction *saveAs = nullptr;
    QAction *saveCopy = nullptr;
    QAction *close = nullptr;
    QMenu *saveMenu = nullptr;

    QAction *undo = nullptr;
    QAction *redo = nullptr;
    QAction *cut = nullptr;
    QAction *copy = nullptr;
    QAction *paste = nullptr;
    QAction *selectAll = nullptr;

    QAction *insertDate = nullptr;
    QAction *insertTime = nullptr;
    QAction *insertDateTime = nullptr;
    QAction *insertFileName = nullptr;
    QMenu *insertMenu = nullptr;

    QAction *lineEndLf = nullptr;
    QAction *lineEndCrLf = nullptr;
    QAction *byteOrderMark = nullptr;
    QMenu *formatMenu = nullptr;

    QAction *clearStyles = nullptr;

    QAction *find = nullptr;
    QAction *replace = nullptr;
    QAction *quickFind = nullptr;
    QAction *findNext = nullptr;
    QAction *findPrevious = nullptr;
    QAction *replaceNext = nullptr;
    QAction *replaceAll = nullptr;
    QAction *matchCase = nullptr;
    QAction *wholeWords = nullptr;
    QAction *goToLine = nullptr;

    QAction *wordWrap = nullptr;
    QAction *lineNumbers = nullptr;
    QAction *currentLine = nullptr;
    QAction *whiteSpace = nullptr;
    QAction *chooseFont = nullptr;
    QAction *bold = nullptr;
    QAction *fontLarger = nullptr;
    QAction *fontSmaller = nullptr;
    QAction *zoomIn = nullptr;
    QAction *zoomOut = nullptr;
    QAction *zoomReset = nullptr;
    QAction *fullScreen = nullptr;
    QAction *help = nullptr;

    QAction *upperCase = nullptr;
    QAction *lowerCase = nullptr;
    QAction *titleCase = nullptr;
    QAction *sortLines = nullptr;
    QAction *reverseLines = nullptr;
    QAction *removeDuplicates = nullptr;
    QAction *joinLines = nullptr;
    QAction *indent = nullptr;
    QAction *outdent = nullptr;
    QAction *trim = nullptr;

Q_SIGNALS:
    /// The user pressed the keys of \a menu, which opens under its button on the ribbon.
    void menuRequested(QMenu *menu);

private:
    void createFileActions();
    void createEditActions();
    void createInsertActions();
    void createFormatActions();
    void createStyleActions();
    void createFindActions();
    void createShowActions();
    void createZoomActions();
    void createCaseActions();
    void createLineActions();

    /// The icon of an action is the one of its \a name, if there is one.
    QAction *create(const QString &name, const QString &text, const QString &shortcut,
                    const QString &tip);
    QAction *createToggle(const QString &name, const QString &text, const QString &shortcut,
                          const QString &tip);

    QMenu *createMenu(const QString &name, const QString &title, const QString &shortcut,
                      const QString &tip);
    static void setTexts(QAction *action, const QString &text, const QString &shortcut,
                         const QString &tip);

    QWidget *m_window;
};
