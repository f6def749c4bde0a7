// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Does one file operation and ends, so that a test can run it where things go wrong: on a full disk,
// as another user, with system calls that fail. Prints each box that it saw as one line.
//
//     fileoperator [--answer BUTTON] [--wait-for-tracer] paste copy|cut FOLDER SOURCE...
//     fileoperator [...] copy|replace SOURCE TARGET
//     fileoperator [...] remove PATH

#include "address/FileOperations.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QFontMetrics>
#include <QMessageBox>
#include <QMimeData>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <cstdlib>

#ifdef Q_OS_LINUX
#    include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class NoSelection final : public FileSelection
{
public:
    QStringList selectedPaths() const override { return {}; }
    QString currentPath() const override { return {}; }
};

/// Presses \a button in every box that has it, and closes all others.
void answerBox(const QString &button)
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    QTextStream(stdout) << box->windowTitle() << ": " << box->text().simplified() << Qt::endl;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->text().remove(u'&') == button) {
            candidate->click();
            return;
        }
    }
    box->close();
}

bool hasTracer()
{
    QFile status(u"/proc/self/status"_s);
    // Who lets this fail is the tracer.
    return !status.open(QFile::ReadOnly) || !status.readAll().contains("\nTracerPid:\t0\n");
}

/// So that only the operation is traced, and not the start of the program.
bool waitForTracer()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY, 0, 0, 0);
#endif
    QTextStream(stdout) << "ready " << QCoreApplication::applicationPid() << Qt::endl;
    QElapsedTimer clock;
    clock.start();
    constexpr qint64 Patience = 10'000; // ms
    while (!hasTracer()) {
        if (clock.hasExpired(Patience))
            return false;
        QThread::msleep(1);
    }
    // It is attached some moments before it watches.
    QThread::msleep(5);
    return true;
}

bool operate(const QStringList &words)
{
    const NoSelection selection;
    FileOperations operations(selection);
    const QString verb = words.value(0);
    if (verb == "paste"_L1 && words.size() > 3) {
        QList<QUrl> urls;
        for (const QString &source : words.mid(3))
            urls.append(QUrl::fromLocalFile(source));
        auto *data = new QMimeData; // the clipboard takes it over
        data->setUrls(urls);
        data->setData("application/x-cut-or-copy"_L1, words.at(1).toLatin1());
        QGuiApplication::clipboard()->setMimeData(data);
        operations.paste(words.at(2));
        return true;
    }
    if ((verb == "copy"_L1 || verb == "replace"_L1) && words.size() == 3) {
        operations.copyPath(words.at(1), words.at(2), verb == "replace"_L1);
        return true;
    }
    if (verb == "remove"_L1 && words.size() == 2) {
        QTextStream(stdout) << (operations.removePath(words.at(1)) ? "gone" : "left") << Qt::endl;
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments().mid(1);
    QString answer;
    bool isTraced = false;
    while (words.value(0).startsWith("--"_L1)) {
        const QString option = words.takeFirst();
        if (option == "--answer"_L1 && !words.isEmpty())
            answer = words.takeFirst();
        else if (option == "--wait-for-tracer"_L1)
            isTraced = true;
    }
    QTimer driver;
    QObject::connect(&driver, &QTimer::timeout, qApp, [answer] { answerBox(answer); });
    driver.start(0);
    // Loads what the first box needs.
    if (!answer.isEmpty())
        static_cast<void>(QFontMetrics(QApplication::font()).horizontalAdvance(answer));
    if (isTraced && !waitForTracer())
        return 3;
    const bool isUnderstood = operate(words);
    // The rest of the program is no part of the operation, and must not be traced either.
    std::_Exit(isUnderstood ? 0 : 2);
}
