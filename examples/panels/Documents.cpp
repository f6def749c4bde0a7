// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Documents.h"

#include "CloseRange.h"
#include "PageLoader.h"

#include <QApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using VornFrame::DockContentWidget;

namespace {

/// An ampersand in a name would mark a key.
QString tabTextFor(const QString &path)
{
    return QFileInfo(path).fileName().replace(u'&', u"&&"_s);
}

/// A name may look like markup.
QString toolTipFor(const QString &path)
{
    return u"<p style=\"white-space: pre\">%1</p>"_s.arg(path.toHtmlEscaped());
}

bool isFocusIn(const QWidget *widget)
{
    const QWidget *focus = QApplication::focusWidget();
    return focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
}

} // namespace

Documents::Documents(DockContentWidget *content, QObject *parent)
    : QObject(parent), m_content(content)
{
    m_sectionOfKind.insert(int(PageLoader::Kind::Markdown), content->addSection(tr("Documents")));
    m_sectionOfKind.insert(int(PageLoader::Kind::Text), content->addSection(tr("Text Files")));
    m_sectionOfKind.insert(int(PageLoader::Kind::Picture), content->addSection(tr("Pictures")));
    // Without a tab, its picture says how to get one.
    content->setAutoHide(false);
    connect(content, &DockContentWidget::signalTabCloseRequested, this, &Documents::closeTabs);
    connect(content, &DockContentWidget::signalCurrentTabChanged, this, &Documents::currentChanged);
    connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
            &Documents::currentChanged);
}

QString Documents::open(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    DocumentPage *page = pageOf(absolute);
    if (!page) {
        PageLoader::Result result = PageLoader::load(absolute);
        if (!result.page)
            return result.reason;
        page = result.page.release();
        const int section = m_sectionOfKind.value(int(result.kind));
        const int tab = m_content->addTab(section, page, tabTextFor(absolute));
        m_content->setTabToolTip(section, tab, toolTipFor(absolute));
    }
    const int section = m_content->sectionOf(page);
    if (!isSectionShown(section))
        setSectionShown(section, true);
    m_content->setCurrentTab(section, m_content->tabOf(page));
    page->setFocus(Qt::OtherFocusReason);
    return {};
}

DocumentPage *Documents::currentPage() const
{
    const int section = m_content->currentSection();
    if (!isSectionShown(section))
        return nullptr;
    return qobject_cast<DocumentPage *>(m_content->currentWidget(section));
}

void Documents::goToLine(int line) const
{
    if (DocumentPage *page = currentPage())
        page->goToLine(line);
}

void Documents::closeCurrent()
{
    if (!currentPage())
        return;
    const int section = m_content->currentSection();
    closeTabs(VornFrame::CloseCurrent, section, m_content->currentTab(section));
}

void Documents::closeTabs(VornFrame::CloseMode mode, int section, int index)
{
    QList<QWidget *> pages;
    const QList<int> tabs = CloseRange::tabs(mode, index, m_content->tabCount(section));
    for (const int tab : tabs)
        pages.append(m_content->widget(section, tab));
    bool hadFocus = false;
    for (QWidget *page : std::as_const(pages)) {
        hadFocus = hadFocus || isFocusIn(page);
        m_content->removeTab(section, m_content->tabOf(page));
        page->deleteLater();
    }
    if (DocumentPage *page = currentPage(); page && hadFocus)
        page->setFocus(Qt::OtherFocusReason);
    // The work surface is silent when the next tab gets the number of the closed one.
    Q_EMIT currentChanged();
}

void Documents::stepTab(int step)
{
    if (!currentPage())
        return;
    const int section = m_content->currentSection();
    const int count = m_content->tabCount(section);
    m_content->setCurrentTab(section, (m_content->currentTab(section) + step + count) % count);
    currentPage()->setFocus(Qt::TabFocusReason);
}

void Documents::stepSection(int step)
{
    const QList<int> sections = shownSections();
    if (sections.isEmpty())
        return;
    const qsizetype count = sections.size();
    const qsizetype at = sections.indexOf(m_content->currentSection());
    const int section = sections.at((at + step + count) % count);
    m_content->setCurrentTab(section, m_content->currentTab(section));
    if (DocumentPage *page = currentPage())
        page->setFocus(Qt::TabFocusReason);
}

int Documents::sectionCount() const
{
    return m_content->sectionCount();
}

QString Documents::sectionText(int section) const
{
    return m_content->sectionText(section);
}

bool Documents::hasTabs(int section) const
{
    return m_content->tabCount(section) > 0;
}

bool Documents::isSectionShown(int section) const
{
    return hasTabs(section) && m_content->isSectionVisible(section);
}

void Documents::setSectionShown(int section, bool shown)
{
    if (!hasTabs(section))
        return;
    m_content->setSectionVisible(section, shown);
    m_content->setSectionBarVisible(!shownSections().isEmpty());
    if (shown)
        m_content->setCurrentTab(section, m_content->currentTab(section));
    Q_EMIT currentChanged();
}

DocumentPage *Documents::pageOf(const QString &path) const
{
    const QString wanted = QFileInfo(path).canonicalFilePath();
    if (wanted.isEmpty())
        return nullptr;
    for (int section = 0; section < m_content->sectionCount(); ++section) {
        for (int tab = 0; tab < m_content->tabCount(section); ++tab) {
            auto *page = qobject_cast<DocumentPage *>(m_content->widget(section, tab));
            if (page != nullptr && QFileInfo(page->path()).canonicalFilePath() == wanted)
                return page;
        }
    }
    return nullptr;
}

QList<int> Documents::shownSections() const
{
    QList<int> sections;
    for (int section = 0; section < m_content->sectionCount(); ++section) {
        if (isSectionShown(section))
            sections.append(section);
    }
    return sections;
}
