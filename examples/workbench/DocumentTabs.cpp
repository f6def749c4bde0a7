// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentTabs.h"

#include "CloseRange.h"
#include "FileDocument.h"
#include "Messages.h"
#include "UnsavedChanges.h"
#include "WaitCursor.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using VornFrame::DockContentWidget;

namespace {

/// An ampersand in a name would mark a key.
QString tabTextFor(const WorkbenchDocument *document)
{
    const QString name = QFileInfo(document->path()).fileName().replace(u'&', u"&&"_s);
    return document->isModified() ? name + u'*' : name;
}

/// A name may look like markup.
QString toolTipFor(const QString &path)
{
    return u"<p style=\"white-space: pre\">%1</p>"_s.arg(
        QDir::toNativeSeparators(path).toHtmlEscaped());
}

/// Whether another program wrote to the file, and reading it again loses nothing.
bool isOutdated(const WorkbenchDocument *document)
{
    const auto *file = qobject_cast<const FileDocument *>(document);
    return file != nullptr && !file->isModified() && file->isChangedOnDisk();
}

QString saved(WorkbenchDocument *document)
{
    const WaitCursor cursor;
    return document->save();
}

QString savedAnyway(FileDocument *document)
{
    const WaitCursor cursor;
    return document->saveAnyway();
}

bool isFocusIn(const QWidget *widget)
{
    const QWidget *focus = QApplication::focusWidget();
    return focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
}

} // namespace

DocumentTabs::DocumentTabs(DockContentWidget *content, Loader loader, QObject *parent)
    : QObject(parent), m_content(content), m_loader(std::move(loader))
{
    // In the order of WorkbenchDocument::Kind.
    content->addSection(tr("Texts"));
    content->addSection(tr("Pictures"));
    content->addSection(tr("Tables"));
    // Without a tab, its picture says how to get one.
    content->setAutoHide(false);
    connect(content, &DockContentWidget::signalTabCloseRequested, this, &DocumentTabs::close);
    connect(content, &DockContentWidget::signalCurrentTabChanged, this,
            &DocumentTabs::signalCurrentChanged);
    connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
            &DocumentTabs::signalCurrentChanged);
}

bool DocumentTabs::open(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    WorkbenchDocument *document = documentOf(absolute);
    if (!document || isOutdated(document)) {
        WorkbenchDocument *before = std::exchange(document, load(absolute));
        if (!document)
            return false;
        add(document);
        if (before)
            remove(before);
    }
    show(document);
    Q_EMIT signalDocumentsChanged();
    return true;
}

/// Null, after signalFailed(), when that was not possible.
WorkbenchDocument *DocumentTabs::load(const QString &path)
{
    QString reason;
    WorkbenchDocument *document = nullptr;
    {
        const WaitCursor cursor;
        document = m_loader(path, &reason);
    }
    if (!document)
        Q_EMIT signalFailed(tr("“%1” could not be opened.").arg(QDir::toNativeSeparators(path)),
                            reason);
    return document;
}

WorkbenchDocument *DocumentTabs::current() const
{
    const int section = m_content->currentSection();
    if (section < 0)
        return nullptr;
    return qobject_cast<WorkbenchDocument *>(m_content->currentWidget(section));
}

QList<WorkbenchDocument *> DocumentTabs::documents() const
{
    QList<WorkbenchDocument *> documents;
    for (int section = 0; section < m_content->sectionCount(); ++section) {
        for (int tab = 0; tab < m_content->tabCount(section); ++tab) {
            auto *document = qobject_cast<WorkbenchDocument *>(m_content->widget(section, tab));
            if (document)
                documents.append(document);
        }
    }
    return documents;
}

bool DocumentTabs::isAnyModified() const
{
    const QList<WorkbenchDocument *> all = documents();
    return std::any_of(all.cbegin(), all.cend(),
                       [](const WorkbenchDocument *document) { return document->isModified(); });
}

bool DocumentTabs::save(WorkbenchDocument *document)
{
    const QString name = QDir::toNativeSeparators(document->path());
    QString reason = saved(document);
    const QPointer<DocumentTabs> guard(this);
    const QPointer<FileDocument> file(qobject_cast<FileDocument *>(document));
    while (!reason.isEmpty() && file && file->canSaveAnyway()) {
        const QString question = tr("“%1” is not saved yet.").arg(name) + u"\n\n"_s + reason;
        if (!Messages::confirm(m_content->window(), question, tr("Save Anyway")) || guard == nullptr
            || file == nullptr)
            return false;
        reason = savedAnyway(file);
    }
    if (reason.isEmpty())
        Q_EMIT signalMessage(tr("“%1” was saved.").arg(name));
    else
        Q_EMIT signalFailed(tr("“%1” could not be saved.").arg(name), reason);
    return reason.isEmpty();
}

bool DocumentTabs::saveCurrent()
{
    WorkbenchDocument *document = current();
    return document == nullptr || save(document);
}

bool DocumentTabs::saveCopy(WorkbenchDocument *document, const QString &path)
{
    auto *file = qobject_cast<FileDocument *>(document);
    const QString reason = file ? file->saveCopy(path) : tr("It cannot be copied.");
    const QString name = QDir::toNativeSeparators(path);
    if (reason.isEmpty())
        Q_EMIT signalMessage(tr("The copy “%1” was written.").arg(name));
    else
        Q_EMIT signalFailed(tr("The copy “%1” could not be written.").arg(name), reason);
    return reason.isEmpty();
}

void DocumentTabs::followRename(const QString &folder, const QString &oldName,
                                const QString &newName)
{
    const QDir around(folder);
    const QString before = around.filePath(oldName);
    const QList<WorkbenchDocument *> all = documents();
    for (WorkbenchDocument *document : all) {
        const QString path = document->path();
        // It may be the folder of the document, or one around that.
        if (path == before || path.startsWith(before + u'/'))
            move(document, around.filePath(newName) + path.mid(before.size()));
    }
}

bool DocumentTabs::saveAll()
{
    bool isSaved = true;
    const QList<WorkbenchDocument *> all = documents();
    // A message may hold this up while documents go.
    const QList<QPointer<WorkbenchDocument>> guarded(all.cbegin(), all.cend());
    for (const QPointer<WorkbenchDocument> &document : guarded) {
        if (document && document->isModified())
            isSaved = save(document) && isSaved;
    }
    return isSaved;
}

void DocumentTabs::closeCurrent()
{
    if (!current())
        return;
    const int section = m_content->currentSection();
    close(VornFrame::CloseCurrent, section, m_content->currentTab(section));
}

void DocumentTabs::undo()
{
    if (WorkbenchDocument *document = current())
        document->undo();
}

void DocumentTabs::redo()
{
    if (WorkbenchDocument *document = current())
        document->redo();
}

bool DocumentTabs::askAll()
{
    const QList<WorkbenchDocument *> all = documents();
    const QPointer<DocumentTabs> guard(this);
    UnsavedChanges changes(this, m_content->window());
    connect(&changes, &UnsavedChanges::signalAsking, this, &DocumentTabs::show);
    const bool isAnswered = changes.ask(all);
    return guard != nullptr && isAnswered && changes.closable().size() == all.size();
}

void DocumentTabs::stepTab(int step)
{
    if (!current())
        return;
    const int section = m_content->currentSection();
    const int count = m_content->tabCount(section);
    m_content->setCurrentTab(section, (m_content->currentTab(section) + step + count) % count);
    current()->setFocus(Qt::TabFocusReason);
}

void DocumentTabs::stepSection(int step)
{
    if (!current())
        return;
    const int count = m_content->sectionCount();
    int section = m_content->currentSection();
    do
        section = (section + step + count) % count;
    while (m_content->tabCount(section) == 0);
    m_content->setCurrentTab(section, m_content->currentTab(section));
    current()->setFocus(Qt::TabFocusReason);
}

void DocumentTabs::add(WorkbenchDocument *document)
{
    const int section = document->kind();
    const int tab = m_content->addTab(section, document, tabTextFor(document));
    m_content->setTabToolTip(section, tab, toolTipFor(document->path()));
    connect(document, &WorkbenchDocument::signalModifiedChanged, this,
            [this, document] { showModified(document); });
    connect(document, &WorkbenchDocument::signalContentChanged, this, [this, document] {
        if (document == current())
            Q_EMIT signalContentChanged();
    });
    connect(document, &WorkbenchDocument::signalHistoryChanged, this, [this, document] {
        if (document == current())
            Q_EMIT signalHistoryChanged();
    });
    connect(document, &WorkbenchDocument::signalMessage, this, &DocumentTabs::signalMessage);
    Q_EMIT signalMessage(tr("“%1” was opened.").arg(QDir::toNativeSeparators(document->path())));
}

void DocumentTabs::close(VornFrame::CloseMode mode, int section, int index)
{
    QList<WorkbenchDocument *> meant;
    const QList<int> tabs = CloseRange::tabs(mode, index, m_content->tabCount(section));
    for (const int tab : tabs) {
        if (auto *document = qobject_cast<WorkbenchDocument *>(m_content->widget(section, tab)))
            meant.append(document);
    }
    // The questions run event loops of their own.
    const QPointer<DocumentTabs> guard(this);
    UnsavedChanges changes(this, m_content->window());
    connect(&changes, &UnsavedChanges::signalAsking, this, &DocumentTabs::show);
    if (!changes.ask(meant) || !guard)
        return;
    const QList<WorkbenchDocument *> closable = changes.closable();
    const bool hadFocus = std::any_of(closable.cbegin(), closable.cend(), isFocusIn);
    for (WorkbenchDocument *document : closable)
        remove(document);
    if (current() && hadFocus)
        current()->setFocus(Qt::OtherFocusReason);
    // The work surface is silent when the next tab gets the number of the closed one.
    Q_EMIT signalCurrentChanged();
    Q_EMIT signalDocumentsChanged();
}

void DocumentTabs::remove(WorkbenchDocument *document)
{
    m_content->removeTab(m_content->sectionOf(document), m_content->tabOf(document));
    document->disconnect(this);
    document->deleteLater();
    Q_EMIT signalMessage(tr("“%1” was closed.").arg(QDir::toNativeSeparators(document->path())));
}

void DocumentTabs::move(WorkbenchDocument *document, const QString &path)
{
    document->setPath(path);
    m_content->setTabToolTip(m_content->sectionOf(document), m_content->tabOf(document),
                             toolTipFor(path));
    showModified(document);
    Q_EMIT signalMessage(
        tr("An open file is called “%1” now.").arg(QDir::toNativeSeparators(path)));
}

void DocumentTabs::show(WorkbenchDocument *document)
{
    m_content->setCurrentTab(m_content->sectionOf(document), m_content->tabOf(document));
    document->setFocus(Qt::OtherFocusReason);
}

void DocumentTabs::showModified(WorkbenchDocument *document)
{
    m_content->setTabText(m_content->sectionOf(document), m_content->tabOf(document),
                          tabTextFor(document));
    if (document == current())
        Q_EMIT signalContentChanged();
    Q_EMIT signalDocumentsChanged();
}

WorkbenchDocument *DocumentTabs::documentOf(const QString &path) const
{
    const QString wanted = QFileInfo(path).canonicalFilePath();
    const QList<WorkbenchDocument *> all = documents();
    for (WorkbenchDocument *document : all) {
        // The file of an open document may be gone.
        if (document->path() == path
            || (!wanted.isEmpty() && QFileInfo(document->path()).canonicalFilePath() == wanted))
            return document;
    }
    return nullptr;
}
