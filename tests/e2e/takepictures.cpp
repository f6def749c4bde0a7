// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Takes the pictures of the documents from the running workbench, on a screen that nobody sees.

#include "Scene.h"
#include "TravelFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Seen in the address bar, so it is the same everywhere.
QString folderPath()
{
    return u"/tmp/Voyage"_s;
}

constexpr QPoint Parking_Place(5, 5);
constexpr int Arrow_Width = 14; ///< of an entry of the address bar
constexpr int Same_Looks = 4;
constexpr QSize Gallery_Size(980, 560);
constexpr QSize Address_Size(600, 300);

QByteArray settings()
{
    return "[General]\nformat=1\n[gallery]\nfavourites=warm, sharpen, vignette\n";
}

/// The workbench with some files, and the folder where its pictures go.
class Photographer
{
public:
    Photographer(const QString &program, int scale, const QDir &target)
        : m_scene(program, scale), m_scale(scale), m_target(target)
    {}

    void start(const TravelFolder &folder)
    {
        m_scene.write(u"settings.ini"_s, settings());
        QStringList paths{folder.path()};
        for (const auto &name : {u"harbours.csv"_s, u"packing.txt"_s, u"log.md"_s,
                                 u"lighthouse.png"_s, u"fjord.png"_s})
            paths.append(folder.filePath(name));
        m_scene.start(paths);
        m_window = m_scene.workbench()->place(u"widget workbench"_s);
    }

    void takeAll()
    {
        choose(u"file fjord.png"_s);
        take(u"workbench"_s, QRect(QPoint(), m_window.size()));
        takeGallery();
        takeRibbon();
        takeDock();
        takeAddress();
        m_scene.leave();
    }

    bool isReady() { return !m_scene.steps()->haveFailed(); }
    QString failure() { return m_scene.steps()->failure(); }

private:
    /// In the coordinates of the window.
    QRect place(const QString &command)
    {
        return m_scene.workbench()->place(command).translated(-m_window.topLeft());
    }

    /// An area of the window on the screen.
    QRect pixels(const QRect &area) const
    {
        const QRect moved = area.translated(m_window.topLeft());
        return {moved.topLeft() * m_scale, moved.size() * m_scale};
    }

    void choose(const QString &command)
    {
        m_scene.click(command);
        park();
    }

    /// Nothing is to look as if the pointer were on it.
    void park() { m_scene.person()->move(Parking_Place); }

    /// The \a area of the window, as soon as all stands still.
    void take(const QString &name, const QRect &area)
    {
        QImage screen;
        int looks = 0;
        m_scene.steps()->waitUntil(
            [this, &screen, &looks] {
                const QImage before = std::exchange(screen, m_scene.picture());
                looks = screen == before ? looks + 1 : 0;
                return looks == Same_Looks;
            },
            [&name] { return u"%1 does not stand still"_s.arg(name); });
        if (!isReady())
            return;
        const QString suffix = m_scale == 1 ? QString() : u"@%1x"_s.arg(m_scale);
        if (!screen.copy(pixels(area)).save(m_target.filePath(name + suffix + u".png"_s)))
            m_scene.steps()->fail(u"%1 could not be written"_s.arg(name));
    }

    /// Closes the popup that \a command describes.
    void escape(const QString &command)
    {
        m_scene.person()->press(u"Escape"_s);
        m_scene.workbench()->waitUntilGone(command);
    }

    void takeGallery()
    {
        const QString popup = u"widget galleryPopupMenu"_s;
        choose(u"button Show all items"_s);
        m_scene.workbench()->place(popup);
        // From the search field, whose cursor would blink, to the tiles.
        m_scene.person()->press(u"Down"_s);
        take(u"gallery"_s, QRect(QPoint(), Gallery_Size));
        escape(popup);
    }

    void takeRibbon()
    {
        choose(u"button Home"_s);
        m_scene.workbench()->waitFor(u"ribbon page"_s, u"homePage"_s);
        const int height = place(u"widget addressBar"_s).top();
        take(u"ribbon"_s, QRect(0, 0, m_window.width(), height));
    }

    void takeDock()
    {
        m_scene.click(u"section 0"_s);
        m_scene.workbench()->waitFor(u"ribbon page"_s, u"textTools"_s);
        // The text cursor would blink.
        choose(u"file log.md"_s);
        const int top = place(u"widget addressBar"_s).bottom() + 1;
        take(u"dock"_s, QRect(0, top, m_window.width(), m_window.height() - top));
    }

    void takeAddress()
    {
        const QString entry = u"entry Letters"_s;
        const QRect folder = m_scene.workbench()->place(u"button Voyage"_s);
        m_scene.person()->click({folder.right() - Arrow_Width / 2, folder.center().y()});
        m_scene.workbench()->place(entry);
        park();
        const int top = place(u"widget addressBar"_s).top();
        take(u"address"_s, QRect(QPoint(0, top), Address_Size));
        escape(entry);
    }

    Scene m_scene;
    const int m_scale;
    const QDir m_target;
    QRect m_window;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream errors(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        errors << "usage: takepictures WORKBENCH FOLDER\n";
        return 2;
    }
    const TravelFolder folder(folderPath());
    if (!folder.isComplete()) {
        errors << folderPath() << " is in the way, or could not be written\n";
        return 1;
    }
    for (const int scale : {1, 2}) {
        Photographer photographer(arguments.at(1), scale, QDir(arguments.at(2)));
        photographer.start(folder);
        photographer.takeAll();
        if (!photographer.isReady()) {
            errors << photographer.failure() << '\n';
            return 1;
        }
    }
    return 0;
}
