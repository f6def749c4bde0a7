// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchFixture.h"

#include "support/Input.h"

#include "WorkbenchWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

WorkbenchFixture::WorkbenchFixture() = default;
WorkbenchFixture::~WorkbenchFixture() = default;

WorkbenchDocument *WorkbenchFixture::load(const QString &path, QString *reason)
{
    const QString name = QFileInfo(path).fileName();
    if (!QFileInfo::exists(path) || name.startsWith(u'x')) {
        *reason = u"No <good> file."_s;
        return nullptr;
    }
    if (name.startsWith(u'p'))
        return new ScriptedDocument(WorkbenchDocument::Picture, path);
    if (name.startsWith(u'c'))
        return new ScriptedDocument(WorkbenchDocument::Table, path);
    return new ScriptedDocument(WorkbenchDocument::Text, path);
}

void WorkbenchFixture::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    TestCase::initTestCase();
}

void WorkbenchFixture::init()
{
    TestCase::init();
    m_clipboardText = QGuiApplication::clipboard()->text();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    // The folder that is shown when there is no other.
    m_home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(m_folder->path()));
    restart(QString());
}

void WorkbenchFixture::cleanup()
{
    m_window.reset();
    qputenv("HOME", m_home);
    m_folder.reset();
    qApp->setStyleSheet(QString());
    QGuiApplication::clipboard()->setText(m_clipboardText);
    TestCase::cleanup();
}

void WorkbenchFixture::restart(const QString &settingsFile)
{
    if (m_window)
        m_window->close();
    m_window.reset();
    m_window = std::make_unique<WorkbenchWindow>(settingsFile, &WorkbenchFixture::load);
    if (!QFileInfo::exists(settingsFile)) {
        m_window->resize(780, 600);
        QVERIFY(m_window->openPath(m_folder->path()));
    }
    QVERIFY(Input::show(m_window.get()));
}

VornFrame::DockContentWidget *WorkbenchFixture::content() const
{
    return m_window->agent()->dockContainer()->contentWidget();
}

QAction *WorkbenchFixture::action(const QString &name) const
{
    return m_window->findChild<QAction *>(name);
}

QString WorkbenchFixture::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

void WorkbenchFixture::open(const QStringList &names) const
{
    for (const QString &name : names)
        QVERIFY(m_window->tabs()->open(createFile(name)));
}

ScriptedDocument *WorkbenchFixture::document(const QString &name) const
{
    const QList<WorkbenchDocument *> all = m_window->tabs()->documents();
    for (WorkbenchDocument *document : all) {
        if (QFileInfo(document->path()).fileName() == name)
            return qobject_cast<ScriptedDocument *>(document);
    }
    return nullptr;
}

QStringList WorkbenchFixture::tabs(int section) const
{
    QStringList texts;
    for (int i = 0; i < content()->tabCount(section); ++i)
        texts.append(content()->tabText(section, i));
    return texts;
}

QTabBar *WorkbenchFixture::tabBar(int section) const
{
    const QWidget *page = content()->widget(section, 0);
    return qobject_cast<QTabWidget *>(page->parentWidget()->parentWidget())->tabBar();
}

QString WorkbenchFixture::current() const
{
    const WorkbenchDocument *document = m_window->tabs()->current();
    return document ? QFileInfo(document->path()).fileName() : QString();
}
