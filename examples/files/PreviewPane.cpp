// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PreviewPane.h"

#include "ContentLoader.h"
#include "ElidedLabel.h"
#include "FileContent.h"
#include "PictureView.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <chrono>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Who walks through a list with the arrow keys does not want to see every file.
constexpr auto Delay = 50ms;
/// What is shown stays that long when the next takes its time.
constexpr auto Patience = 500ms;

constexpr int Head_Margin = 4;
constexpr int Head_Spacing = 12;

QString nameOf(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

} // namespace

PreviewPane::PreviewPane(QWidget *parent)
    : QWidget(parent), m_loader(new ContentLoader(this)), m_name(new ElidedLabel),
      m_facts(new ElidedLabel), m_views(new QStackedWidget), m_messageView(createMessageView()),
      m_textView(createTextView()), m_pictureView(new PictureView)
{
    m_pictureView->setObjectName(u"previewPicture"_s);
    m_name->setObjectName(u"previewName"_s);
    m_facts->setObjectName(u"previewFacts"_s);
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_facts->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QWidget *view : std::initializer_list<QWidget *>{m_messageView, m_textView, m_pictureView})
        m_views->addWidget(view);
    auto *head = new QHBoxLayout;
    head->setContentsMargins(Head_Margin, Head_Margin, Head_Margin, Head_Margin);
    head->setSpacing(Head_Spacing);
    head->addWidget(m_name, 1);
    head->addWidget(m_facts, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(m_views, 1);
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    m_patience.setSingleShot(true);
    m_patience.setInterval(Patience);
    connect(&m_delay, &QTimer::timeout, this, &PreviewPane::load);
    connect(&m_patience, &QTimer::timeout, this, &PreviewPane::showPatience);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &PreviewPane::start);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PreviewPane::start);
    connect(m_loader, &ContentLoader::loaded, this, &PreviewPane::showContent);
}

void PreviewPane::showPath(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    m_isFocusWanted = false;
    start();
}

void PreviewPane::openFile(const QString &path)
{
    m_path = path;
    m_isFocusWanted = true;
    start();
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    start();
}

QPlainTextEdit *PreviewPane::createTextView()
{
    auto *view = new QPlainTextEdit;
    view->setObjectName(u"previewText"_s);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->setFrameShape(QFrame::NoFrame);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setTabChangesFocus(true);
    return view;
}

QLabel *PreviewPane::createMessageView()
{
    auto *view = new QLabel;
    view->setObjectName(u"previewMessage"_s);
    view->setTextFormat(Qt::PlainText);
    view->setAlignment(Qt::AlignCenter);
    view->setWordWrap(true);
    // Another message must not change the size of the preview.
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    view->setBackgroundRole(QPalette::Base);
    view->setAutoFillBackground(true);
    return view;
}

/// Nothing is read for a preview that nobody sees.
void PreviewPane::start()
{
    m_loader->cancel();
    if (!isVisible() || m_path.isEmpty())
        return;
    m_delay.start();
    m_patience.start();
}

void PreviewPane::load()
{
    m_loader->load(m_path);
}

void PreviewPane::watch(const QString &path)
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_watcher.addPath(path);
}

void PreviewPane::showContent(const FileContent &content)
{
    m_patience.stop();
    watch(content.path);
    const QString name = nameOf(content.path);
    m_name->setLine(name);
    m_facts->setLine(content.facts);
    m_pictureView->setPicture(content.picture, content.pictureSize);
    m_textView->clear();
    switch (content.kind) {
    case FileContent::Kind::Message:
        showMessage(content.text);
        break;
    case FileContent::Kind::Text:
        m_textView->setPlainText(content.text);
        m_views->setCurrentWidget(m_textView);
        break;
    case FileContent::Kind::Picture:
        m_views->setCurrentWidget(m_pictureView);
        break;
    }
    m_views->currentWidget()->setAccessibleName(name);
    if (std::exchange(m_isFocusWanted, false) && content.kind == FileContent::Kind::Text)
        m_textView->setFocus(Qt::OtherFocusReason);
}

void PreviewPane::showMessage(const QString &text)
{
    m_messageView->setText(text);
    m_views->setCurrentWidget(m_messageView);
}

void PreviewPane::showPatience()
{
    m_name->setLine(nameOf(m_path));
    m_facts->setLine(QString());
    showMessage(tr("Reading…"));
}
