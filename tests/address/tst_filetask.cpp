// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileOperations.h"
#include "address/FileTask.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QShortcut>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iterator>
#include <thread>

namespace fs = std::filesystem;

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

/// So many that an operation on them takes some seconds.
constexpr int ManyFiles = 50'000;

template <typename Window>
Window *shownWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *found = qobject_cast<Window *>(window);
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

/// Calls a function in every turn of the event loop as long as a window of a class is shown; how
/// often that was.
template <typename Window>
class WhileShown
{
public:
    explicit WhileShown(std::function<void(Window *, int)> act)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act = std::move(act)] {
            if (auto *window = shownWindow<Window>())
                act(window, ++m_times);
        });
        m_timer.start(0);
    }
    int times() const { return m_times; }

private:
    QTimer m_timer;
    int m_times = 0;
};

using WhileProgress = WhileShown<QProgressDialog>;
using WhileQuestion = WhileShown<QMessageBox>;

/// Counts how often it is painted.
class Canvas final : public QWidget
{
public:
    int painted = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++painted; }
};

/// Work that lasts until it is let go, or cancelled.
struct Work
{
    explicit Work(FileTask &task)
        : run([this, &task] {
              while (!isOver && !task.progress().isCancelled())
                  std::this_thread::yield();
          })
    {}

    std::atomic<bool> isOver = false;
    std::function<void()> run;
};

void press(const QWidget *window, const QString &button)
{
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->text().remove(u'&') == button) {
            candidate->click();
            return;
        }
    }
    QFAIL("there is no such button");
}

void cancelBy(const QString &how, QProgressDialog *dialog)
{
    // A second one would make both ambiguous, and the key of a real keyboard would do nothing.
    QCOMPARE(dialog->findChildren<QShortcut *>().size(), 1);
    if (how == "button"_L1)
        press(dialog, u"Cancel"_s);
    else if (how == "Escape"_L1)
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    else
        dialog->close();
}

/// Without "." and "..".
int entriesIn(const QString &folder)
{
    return int(
        std::distance(fs::directory_iterator(folder.toStdString()), fs::directory_iterator()));
}

/// Names of what an operation has not finished.
bool hasLeftovers(const QString &folder)
{
    const fs::recursive_directory_iterator begin(folder.toStdString());
    return std::any_of(begin, fs::recursive_directory_iterator(),
                       [](const fs::directory_entry &entry) {
                           return entry.path().filename().native().rfind(".vornframe", 0) == 0;
                       });
}

/// As in a program that runs until it is told to quit.
void runApplication(const std::function<void()> &act)
{
    QTimer::singleShot(0, qApp, [&act] {
        act();
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
}

class NoSelection final : public FileSelection
{
public:
    QStringList selectedPaths() const override { return {}; }
    QString currentPath() const override { return {}; }
};

} // namespace

class tst_FileTask : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void shortWorkShowsNothing();
    void longWorkShowsWhatItDoes();
    void longWorkKeepsPainting();
    void nameIsPlainText_data();
    void nameIsPlainText();
    void cancelReachesTheWork_data();
    void cancelReachesTheWork();
    void cancelledDialogStaysUntilTheWorkIsOver_data() { cancelReachesTheWork_data(); }
    void cancelledDialogStaysUntilTheWorkIsOver();
    void windowDiesMeanwhile_data();
    void windowDiesMeanwhile();
    void questionComesWhileTheDialogIsShown();
    void timeOfAQuestionIsNotCounted();

    void cancelledCutLeavesWhatDidNotArrive();
    void cancelledCopyLeavesNoParts();
    void nothingElseStartsMeanwhile();
    void nothingElseStartsDuringAQuestion();
    void operationsDieMeanwhile_data();
    void operationsDieMeanwhile();
    void operationsDieDuringAQuestion();

    void applicationQuitsMeanwhile();
    void applicationQuitsDuringAQuestion();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1StringView(name)); }
    void write(const char *name, const QByteArray &content) const;
    QByteArray read(const char *name) const;
    void makeManyFiles(const char *folder) const;
    void paste(FileOperations *operations, const QByteArray &marker, const QStringList &sources);

    std::unique_ptr<QTemporaryDir> m_folder;
    NoSelection m_selection;
};

void tst_FileTask::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(m_folder->path()).mkpath(u"data"_s);
    QDir(m_folder->path()).mkpath(u"target"_s);
    qputenv("XDG_DATA_HOME", QFile::encodeName(path("data")));
}

void tst_FileTask::cleanup()
{
    QGuiApplication::clipboard()->clear();
    m_folder.reset();
    TestCase::cleanup();
}

void tst_FileTask::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(QFileInfo(file).dir().mkpath(u"."_s));
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray tst_FileTask::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_FileTask::makeManyFiles(const char *folder) const
{
    write("seed", "seed");
    const fs::path base = path(folder).toStdString();
    fs::create_directories(base);
    const fs::path seed = path("seed").toStdString();
    // Names of one file are made faster than files.
    for (int i = 0; i < ManyFiles; ++i)
        fs::create_hard_link(seed, base / std::to_string(i));
    fs::remove(path("seed").toStdString());
}

void tst_FileTask::paste(FileOperations *operations, const QByteArray &marker,
                         const QStringList &sources)
{
    QList<QUrl> urls;
    for (const QString &source : sources)
        urls.append(QUrl::fromLocalFile(source));
    auto *data = new QMimeData; // the clipboard takes it over
    data->setUrls(urls);
    data->setData("application/x-cut-or-copy"_L1, marker);
    QGuiApplication::clipboard()->setMimeData(data);
    operations->paste(path("target"));
}

// --- The dialog -----------------------------------------------------------------------------

void tst_FileTask::shortWorkShowsNothing()
{
    const WhileProgress progress([](QProgressDialog *, int) {});
    QThread *thread = nullptr;
    FileTask task(nullptr);
    task.run([&thread] { thread = QThread::currentThread(); });
    QVERIFY(thread != QThread::currentThread());
    QCOMPARE(progress.times(), 0);
    QVERIFY(!shownWindow<QProgressDialog>());
}

void tst_FileTask::longWorkShowsWhatItDoes()
{
    FileTask task(nullptr);
    Work work(task);
    task.progress().setCurrent("/somewhere/name of a file");
    task.progress().addTotal(4'000'000);
    QElapsedTimer clock;
    clock.start();
    const WhileProgress progress([&](QProgressDialog *dialog, int times) {
        const QString text = dialog->findChild<QLabel *>()->text();
        if (times == 1) {
            QVERIFY(clock.elapsed() >= 900);
            QVERIFY(dialog->isModal());
            QVERIFY(!dialog->windowTitle().isEmpty());
            QVERIFY2(text.contains(u"name of a file"_s), qPrintable(text));
            QVERIFY2(!text.contains(u"somewhere"_s), qPrintable(text));
            task.progress().add(1'000'000);
            task.progress().setCurrent("/somewhere/another");
        } else if (text.contains(u"another"_s)) {
            QVERIFY2(text.contains(QLocale().formattedDataSize(1'000'000)), qPrintable(text));
            QVERIFY2(text.contains(QLocale().formattedDataSize(4'000'000)), qPrintable(text));
            work.isOver = true;
        }
        if (QTest::currentTestFailed())
            work.isOver = true;
    });
    task.run(work.run);
    QVERIFY(progress.times() > 1);
    QVERIFY(!shownWindow<QProgressDialog>());
}

void tst_FileTask::longWorkKeepsPainting()
{
    Canvas canvas;
    canvas.show();
    QVERIFY(QTest::qWaitForWindowExposed(&canvas));
    FileTask task(&canvas);
    Work work(task);
    const int before = canvas.painted;
    const WhileProgress progress([&](QProgressDialog *, int) {
        canvas.update();
        work.isOver = canvas.painted > before + 3;
    });
    task.run(work.run);
    QVERIFY(canvas.painted > before + 3);
}

void tst_FileTask::nameIsPlainText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("markup") << QByteArray("<b>bold<img src=x>");
    QTest::newRow("ampersand") << QByteArray("salt & pepper");
    QTest::newRow("place holders") << QByteArray("%1 of %2 %L1");
    QTest::newRow("right to left") << QByteArray("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D.txt");
    QTest::newRow("emoji") << QByteArray("\xF0\x9F\x98\x80");
}

void tst_FileTask::nameIsPlainText()
{
    QFETCH(const QByteArray, name);
    FileTask task(nullptr);
    Work work(task);
    task.progress().setCurrent(fs::path("/folder") / name.toStdString());
    const WhileProgress progress([&](QProgressDialog *dialog, int) {
        const auto *label = dialog->findChild<QLabel *>();
        QCOMPARE(label->textFormat(), Qt::PlainText);
        work.isOver = true;
        QVERIFY2(label->text().startsWith(QString::fromUtf8(name)), qPrintable(label->text()));
    });
    task.run(work.run);
    QVERIFY(progress.times() > 0);
}

void tst_FileTask::cancelReachesTheWork_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("button") << u"button"_s;
    QTest::newRow("Escape") << u"Escape"_s;
    QTest::newRow("closed") << u"closed"_s;
}

void tst_FileTask::cancelReachesTheWork()
{
    QFETCH(const QString, how);
    FileTask task(nullptr);
    Work work(task);
    const WhileProgress progress([how](QProgressDialog *dialog, int) { cancelBy(how, dialog); });
    task.run(work.run);
    QVERIFY(task.progress().isCancelled());
    QVERIFY(!work.isOver);
}

/// What cannot be broken off goes on, and the user must not change files meanwhile.
void tst_FileTask::cancelledDialogStaysUntilTheWorkIsOver()
{
    QFETCH(const QString, how);
    FileTask task(nullptr);
    std::atomic<bool> isSeen = false;
    const WhileProgress progress([&, how](QProgressDialog *dialog, int times) {
        if (times == 1)
            cancelBy(how, dialog);
        else
            isSeen = dialog->isModal();
    });
    task.run([&] {
        constexpr qint64 Patience = 2500; // ms
        QElapsedTimer clock;
        clock.start();
        while (!isSeen && !clock.hasExpired(Patience))
            std::this_thread::yield();
    });
    QVERIFY(task.progress().isCancelled());
    QVERIFY(isSeen);
}

void tst_FileTask::windowDiesMeanwhile_data()
{
    QTest::addColumn<int>("turn");
    QTest::newRow("at once") << 1;
    QTest::newRow("later") << 5;
}

void tst_FileTask::windowDiesMeanwhile()
{
    QFETCH(const int, turn);
    auto window = std::make_unique<QWidget>();
    window->show();
    FileTask task(window.get());
    Work work(task);
    const WhileProgress progress([&](QProgressDialog *, int times) {
        if (times == turn)
            window.reset();
        task.progress().addTotal(100);
        task.progress().add(10);
        work.isOver = times > turn + 5;
    });
    task.run(work.run);
    QVERIFY(!window);
    QVERIFY(work.isOver);
}

void tst_FileTask::questionComesWhileTheDialogIsShown()
{
    FileTask task(nullptr);
    std::atomic<bool> isShown = false;
    QThread *asked = nullptr;
    int answers = 0;
    const WhileProgress progress([&isShown](QProgressDialog *, int) { isShown = true; });
    const WhileQuestion question([](QMessageBox *box, int) {
        QVERIFY(QApplication::activeModalWidget() == box);
        box->button(QMessageBox::Ok)->click();
    });
    task.run([&] {
        while (!isShown)
            std::this_thread::yield();
        for (int i = 0; i < 3; ++i) {
            task.ask([&] {
                asked = QThread::currentThread();
                QMessageBox box(QMessageBox::NoIcon, QString(), u"?"_s, QMessageBox::Ok);
                answers += box.exec() == QMessageBox::Ok ? 1 : 0;
            });
        }
    });
    QCOMPARE(answers, 3);
    QCOMPARE(asked, QThread::currentThread());
    QVERIFY(!task.progress().isCancelled());
}

void tst_FileTask::timeOfAQuestionIsNotCounted()
{
    FileTask task(nullptr);
    const WhileProgress progress([](QProgressDialog *, int) {});
    task.run([&task] { task.ask([] { QThread::msleep(1100); }); });
    QCOMPARE(progress.times(), 0);
}

// --- Operations -----------------------------------------------------------------------------

void tst_FileTask::cancelledCutLeavesWhatDidNotArrive()
{
    write("first", "first");
    write("last", "last");
    makeManyFiles("many");
    FileOperations operations(m_selection);
    const WhileProgress progress([](QProgressDialog *dialog, int) { press(dialog, u"Cancel"_s); });
    paste(&operations, "cut", {path("first"), path("many"), path("last")});
    QVERIFY(progress.times() > 0);
    QVERIFY(!QFile::exists(path("first")));
    QCOMPARE(read("target/first"), QByteArray("first"));
    QCOMPARE(read("last"), QByteArray("last"));
    QVERIFY(!QFile::exists(path("target/last")));
    QCOMPARE(entriesIn(path("many")), ManyFiles);
    QVERIFY(entriesIn(path("target/many")) < ManyFiles);
    QVERIFY(!hasLeftovers(path("target")));
}

void tst_FileTask::cancelledCopyLeavesNoParts()
{
    // One file that is large enough, wherever the copy is when it is cancelled.
    write("big", QByteArray());
    QFile big(path("big"));
    QVERIFY(big.open(QFile::ReadWrite));
    const QByteArray megabyte(qsizetype(1024) * 1024, 'x');
    FileOperations operations(m_selection);
    for (int i = 0; i < 64; ++i)
        big.write(megabyte);
    big.close();
    QStringList sources;
    for (int i = 0; i < 200; ++i) {
        const QString name = path("big") + QString::number(i);
        fs::create_hard_link(path("big").toStdString(), name.toStdString());
        sources.append(name);
    }
    const WhileProgress progress([](QProgressDialog *dialog, int) { press(dialog, u"Cancel"_s); });
    paste(&operations, "copy", sources);
    QVERIFY(progress.times() > 0);
    const QFileInfoList arrived = QDir(path("target")).entryInfoList(QDir::Files | QDir::Hidden);
    QVERIFY(arrived.size() < sources.size());
    for (const QFileInfo &file : arrived)
        QCOMPARE(file.size(), 64 * megabyte.size());
    QVERIFY(!hasLeftovers(path("target")));
}

void tst_FileTask::nothingElseStartsMeanwhile()
{
    write("other", "other");
    makeManyFiles("many");
    FileOperations operations(m_selection);
    FileOperations others(m_selection);
    int tries = 0;
    const WhileProgress progress([&](QProgressDialog *dialog, int) {
        for (FileOperations *object : {&operations, &others}) {
            QVERIFY(!object->removePath(path("other")));
            object->copyPath(path("other"), path("copied"), true);
            object->paste(path("data"));
            object->removeSelection();
            QVERIFY(object->newFolder().isEmpty());
        }
        ++tries;
        press(dialog, u"Cancel"_s);
    });
    QVERIFY(!FileOperations::isRunning());
    paste(&operations, "copy", {path("many")});
    QVERIFY(tries > 0);
    QVERIFY(!FileOperations::isRunning());
    QCOMPARE(read("other"), QByteArray("other"));
    QVERIFY(!QFile::exists(path("copied")));
    QVERIFY(!QFile::exists(path("data/many")));
    // And afterwards they do.
    QVERIFY(others.removePath(path("other")));
}

void tst_FileTask::nothingElseStartsDuringAQuestion()
{
    write("a", "new");
    write("target/a", "old");
    FileOperations operations(m_selection);
    FileOperations others(m_selection);
    const WhileQuestion question([&](QMessageBox *box, int) {
        QVERIFY(FileOperations::isRunning());
        QVERIFY(!others.removePath(path("a")));
        others.copyPath(path("a"), path("target/a"), true);
        others.paste(path("target"));
        press(box, u"Skip"_s);
    });
    paste(&operations, "cut", {path("a")});
    QCOMPARE(question.times(), 1);
    QCOMPARE(read("a"), QByteArray("new"));
    QCOMPARE(read("target/a"), QByteArray("old"));
}

void tst_FileTask::operationsDieMeanwhile_data()
{
    QTest::addColumn<bool>("withWindow");
    QTest::newRow("operations") << false;
    QTest::newRow("window") << true;
}

void tst_FileTask::operationsDieMeanwhile()
{
    QFETCH(const bool, withWindow);
    makeManyFiles("many");
    auto window = std::make_unique<QWidget>();
    window->show();
    QPointer<FileOperations> operations = new FileOperations(m_selection, window.get());
    const WhileProgress progress([&](QProgressDialog *dialog, int times) {
        if (times == 2 && withWindow)
            window.reset();
        else if (times == 2)
            delete operations;
        else if (times == 5)
            press(dialog, u"Cancel"_s);
    });
    paste(operations, "cut", {path("many")});
    QVERIFY(progress.times() > 0);
    QVERIFY(!operations);
    QVERIFY(!FileOperations::isRunning());
    QCOMPARE(entriesIn(path("many")), ManyFiles);
}

void tst_FileTask::operationsDieDuringAQuestion()
{
    write("a", "new");
    write("target/a", "old");
    auto window = std::make_unique<QWidget>();
    QPointer<FileOperations> operations = new FileOperations(m_selection, window.get());
    const WhileQuestion question([&](QMessageBox *box, int) {
        window.reset();
        press(box, u"Replace Current"_s);
    });
    paste(operations, "cut", {path("a")});
    QVERIFY(!operations);
    QCOMPARE(read("target/a"), QByteArray("new"));
    QVERIFY(!QFile::exists(path("a")));
}

void tst_FileTask::applicationQuitsMeanwhile()
{
    makeManyFiles("many");
    FileOperations operations(m_selection);
    const WhileProgress progress([](QProgressDialog *dialog, int times) {
        if (times == 1)
            QCoreApplication::quit();
        else if (times > 3)
            press(dialog, u"Cancel"_s);
    });
    runApplication([&] { paste(&operations, "cut", {path("many")}); });
    QVERIFY(progress.times() > 0);
    QCOMPARE(entriesIn(path("many")), ManyFiles);
    QVERIFY(!hasLeftovers(path("target")));
}

void tst_FileTask::applicationQuitsDuringAQuestion()
{
    write("a", "new a");
    write("b", "new b");
    write("target/a", "old a");
    write("target/b", "old b");
    FileOperations operations(m_selection);
    const WhileQuestion question([](QMessageBox *, int) { QCoreApplication::quit(); });
    runApplication([&] { paste(&operations, "cut", {path("a"), path("b")}); });
    QCOMPARE(read("a"), QByteArray("new a"));
    QCOMPARE(read("b"), QByteArray("new b"));
    QCOMPARE(read("target/a"), QByteArray("old a"));
    QCOMPARE(read("target/b"), QByteArray("old b"));
}

QTEST_MAIN(tst_FileTask)
#include "tst_filetask.moc"
