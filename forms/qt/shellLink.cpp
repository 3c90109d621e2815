// Links to programs, as each system keeps them.
#include "forms/qt/shellLink.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "base/errors.h"
#include "base/files.h"
#include "forms/qt/pictures.h"

namespace {
QString FolderOf(LinkFolder folder) {
    QString path = QStandardPaths::writableLocation(
        folder == LinkFolder::Desktop ? QStandardPaths::DesktopLocation : QStandardPaths::ApplicationsLocation);
    if (path.isEmpty() || !QDir().mkpath(path)) throw Error(PathNotFound);
    return path;
}

#ifdef Q_OS_WIN
void WriteLink(const QString& folder, const QString& caption, const QString& target) {
    const QString link = folder + QLatin1Char('/') + caption + QStringLiteral(".lnk");
    QFile::remove(link);
    if (!QFile::link(target, link)) throw Error(PathFileAccess);
}
#else
/// A path inside a desktop entry's quotes.
QString Quoted(QString path) {
    for (const char special : {'\\', '"', '`', '$'})
        path.replace(QLatin1Char(special), QStringLiteral("\\") + QLatin1Char(special));
    path.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('%'), QStringLiteral("%%"));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

/// The program's icon as a file beside it, for the links to show.
QString IconFile(const QString& target) {
    QString path = QFileInfo(target).path() + QStringLiteral("/Tasmoro.png");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!ProgramIcon().pixmap(128).save(&buffer, "PNG")) throw Error(PathFileAccess);
    WriteWholeFile(Path(path.toStdString()), bytes.toStdString());
    return path;
}

void WriteLink(const QString& folder, const QString& caption, const QString& target) {
    const QString link = folder + QLatin1Char('/') + caption + QStringLiteral(".desktop");
    const QString icon = IconFile(target);
    const QString text =
        QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nIcon=%3\nTerminal=false\n")
            .arg(caption, Quoted(target), icon);
    WriteWholeFile(Path(link.toStdString()), text.toStdString());
    // Desktops start only entries that their owner may execute.
    QFile::setPermissions(link, QFile::permissions(link) | QFile::ExeOwner | QFile::ExeUser);
}
#endif
}  // namespace

void CreateShellLink(LinkFolder folder, const QString& caption, const QString& target) {
    WriteLink(FolderOf(folder), caption, target);
}
