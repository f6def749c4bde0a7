// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TemporaryHome.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// What would let the surroundings of the test into its programs.
bool isForeign(const QString &name)
{
    return name.startsWith("QT_"_L1) || name.startsWith("XDG_"_L1) || name.startsWith("LC_"_L1)
           || name.startsWith("GTK_"_L1) || name == "DISPLAY"_L1 || name == "WAYLAND_DISPLAY"_L1
           || name == "XAUTHORITY"_L1 || name == "SESSION_MANAGER"_L1
           || name == "DESKTOP_SESSION"_L1;
}

} // namespace

TemporaryHome::TemporaryHome()
{
    const QDir home(m_folder.path());
    for (const auto &name : {u"config"_s, u"data"_s, u"cache"_s, u"runtime"_s}) {
        if (!m_folder.isValid() || !home.mkdir(name))
            qFatal("a temporary home folder could not be made");
    }
    QFile::setPermissions(path(u"runtime"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QProcessEnvironment TemporaryHome::environment(const QString &display) const
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    const QStringList names = result.keys();
    for (const QString &name : names) {
        if (isForeign(name))
            result.remove(name);
    }
    result.insert(u"HOME"_s, path());
    result.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
    result.insert(u"XDG_DATA_HOME"_s, path(u"data"_s));
    result.insert(u"XDG_CACHE_HOME"_s, path(u"cache"_s));
    result.insert(u"XDG_RUNTIME_DIR"_s, path(u"runtime"_s));
    result.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s);
    result.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    result.insert(u"LANG"_s, u"C.UTF-8"_s);
    if (!display.isEmpty())
        result.insert(u"DISPLAY"_s, display);
    return result;
}
