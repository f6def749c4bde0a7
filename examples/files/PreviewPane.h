// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

class ContentLoader;
class ElidedLabel;
class PictureView;
class QLabel;
class QPlainTextEdit;
class QStackedWidget;
struct FileContent;

/// Shows what is in a file: its text or picture, else what is known of it. Follows its changes.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);

    /// Shows the file or folder at \a path, unless it is shown already.
    void showPath(const QString &path);

    /// Reads the file at \a path again. If it is a text, that gets the focus.
    void openFile(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;

private:
    static QPlainTextEdit *createTextView();
    static QLabel *createMessageView();
    void start();
    void load();
    void watch(const QString &path);
    void showContent(const FileContent &content);
    void showMessage(const QString &text);
    void showPatience();

    QString m_path;
    ContentLoader *m_loader;
    ElidedLabel *m_name;
    ElidedLabel *m_facts;
    QStackedWidget *m_views;
    QLabel *m_messageView;
    QPlainTextEdit *m_textView;
    PictureView *m_pictureView;
    QFileSystemWatcher m_watcher;
    QTimer m_delay;
    QTimer m_patience;
    bool m_isFocusWanted = false;
};
