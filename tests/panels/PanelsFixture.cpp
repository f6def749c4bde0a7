// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsFixture.h"

#include "support/Input.h"

#include "DockLayout.h"
#include "LightLook.h"
#include "PanelsWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

PanelsFixture::PanelsFixture() = default;
PanelsFixture::~PanelsFixture() = default;

void PanelsFixture::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    TestCase::initTestCase();
}

void PanelsFixture::init()
{
    TestCase::init();
    m_clipboardText = QGuiApplication::clipboard()->text();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    LightLook::install();
    restart(QString());
}

void PanelsFixture::cleanup()
{
    m_window.reset();
    m_folder.reset();
    qApp->setStyleSheet(QString());
    QGuiApplication::clipboard()->setText(m_clipboardText);
    TestCase::cleanup();
}

void PanelsFixture::restart(const QString &settingsFile)
{
    if (m_window)
        m_window->close();
    m_window.reset();
    m_window = std::make_unique<PanelsWindow>(settingsFile);
    QVERIFY(Input::show(m_window.get()));
}

VornFrame::DockContainer *PanelsFixture::container() const
{
    return m_window->findChild<VornFrame::DockContainer *>();
}

VornFrame::DockContentWidget *PanelsFixture::content() const
{
    return container()->contentWidget();
}

DockLayout *PanelsFixture::dockLayout() const
{
    return m_window->findChild<DockLayout *>();
}

QWidget *PanelsFixture::view(const QString &name) const
{
    return m_window->findChild<QWidget *>(name);
}

QAction *PanelsFixture::action(const QString &name) const
{
    return m_window->findChild<QAction *>(name);
}

QTabBar *PanelsFixture::tabBar(int section) const
{
    const QWidget *page = content()->widget(section, 0);
    return qobject_cast<QTabWidget *>(page->parentWidget()->parentWidget())->tabBar();
}

QStringList PanelsFixture::tabs(int section) const
{
    QStringList texts;
    for (int i = 0; i < content()->tabCount(section); ++i)
        texts.append(content()->tabText(section, i));
    return texts;
}

QString PanelsFixture::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

QString PanelsFixture::createPicture(const QString &name, QSize size) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    if (!image.save(path(name)))
        qFatal("a picture for the test could not be written");
    return path(name);
}

void PanelsFixture::openTexts(const QStringList &names) const
{
    QStringList files;
    for (const QString &name : names)
        files.append(createFile(name, "text of " + name.toUtf8() + '\n'));
    m_window->openFiles(files);
}
