// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"

#include "support/Input.h"

#include "DocumentController.h"
#include "NotepadDialog.h"
#include "TextEditor.h"

#include <VornFrame/RibbonBar.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

DialogFixture::DialogFixture() = default;
DialogFixture::~DialogFixture() = default;

void DialogFixture::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    TestCase::initTestCase();
}

void DialogFixture::init()
{
    TestCase::init();
    m_clipboardText = QGuiApplication::clipboard()->text();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_dialog = std::make_unique<NotepadDialog>();
    QVERIFY(Input::show(m_dialog.get()));
}

void DialogFixture::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
    qApp->setStyleSheet(QString());
    QGuiApplication::clipboard()->setText(m_clipboardText);
    TestCase::cleanup();
}

TextEditor *DialogFixture::editor() const
{
    return m_dialog->findChild<TextEditor *>(u"editor"_s);
}

VornFrame::RibbonBar *DialogFixture::bar() const
{
    return m_dialog->findChild<VornFrame::RibbonBar *>();
}

QAction *DialogFixture::action(const QString &name) const
{
    return m_dialog->findChild<QAction *>(name);
}

QPushButton *DialogFixture::tab(const QString &title) const
{
    const QList<QPushButton *> buttons = m_dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().remove(u'&') == title)
            return button;
    }
    return nullptr;
}

QString DialogFixture::label(const QString &name) const
{
    return m_dialog->findChild<QLabel *>(name)->text();
}

QString DialogFixture::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

QByteArray DialogFixture::bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString DialogFixture::openFile(const QString &name, const QByteArray &bytes) const
{
    QString file = createFile(name, bytes);
    if (!m_dialog->document()->load(file).ok())
        qFatal("a file of the test could not be opened");
    return file;
}

void DialogFixture::select(int start, int length) const
{
    editor()->select(start, length);
    // What follows a selection is done in the next turn of the event loop.
    QCoreApplication::processEvents();
}
