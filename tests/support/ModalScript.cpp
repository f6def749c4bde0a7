// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ModalScript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int PollInterval = 5;

QAbstractButton *buttonOf(const QMessageBox *box, const QString &text)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

} // namespace

ModalScript::ModalScript()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalScript::poll);
    m_timer.start(PollInterval);
}

ModalScript::~ModalScript()
{
    if (!isDone())
        QTest::qFail("a modal window that was expected did not come", __FILE__, __LINE__);
}

ModalScript &ModalScript::answer(QMessageBox::StandardButton button)
{
    m_steps += [this, button](QWidget *window) {
        return press(window, [button](QMessageBox *box) { return box->button(button); });
    };
    return *this;
}

ModalScript &ModalScript::answer(const QString &text)
{
    m_steps += [this, text](QWidget *window) {
        return press(window, [text](QMessageBox *box) { return buttonOf(box, text); });
    };
    return *this;
}

ModalScript &ModalScript::chooseFile(const QString &path)
{
    m_steps += [path](QWidget *window) {
        auto *dialog = qobject_cast<QFileDialog *>(window);
        if (!dialog)
            return false;
        if (path.isEmpty()) {
            dialog->reject();
            return true;
        }
        // Qt's own dialog takes an absolute path as the name.
        dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        return true;
    };
    return *this;
}

ModalScript &ModalScript::enter(int value)
{
    m_steps += [value](QWidget *window) {
        auto *dialog = qobject_cast<QInputDialog *>(window);
        if (!dialog)
            return false;
        dialog->setIntValue(value);
        dialog->accept();
        return true;
    };
    return *this;
}

ModalScript &ModalScript::close(std::function<void(QWidget *)> look)
{
    m_steps += [look = std::move(look)](QWidget *window) {
        look(window);
        window->close();
        return true;
    };
    return *this;
}

void ModalScript::poll()
{
    QWidget *window = QApplication::activeModalWidget();
    if (!window)
        return;
    if (m_steps.isEmpty() || !m_steps.takeFirst()(window)) {
        window->close();
        QFAIL(qPrintable(u"a modal window was not expected: "_s + window->windowTitle()));
    }
}

bool ModalScript::press(QWidget *window,
                        const std::function<QAbstractButton *(QMessageBox *)> &choose)
{
    auto *box = qobject_cast<QMessageBox *>(window);
    QAbstractButton *button = box ? choose(box) : nullptr;
    if (!button)
        return false;
    // A file name may look like markup.
    if (box->textFormat() != Qt::PlainText)
        return false;
    m_texts += box->text();
    button->click();
    return true;
}
