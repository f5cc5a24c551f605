// SPDX-License-Identifier: LGPL-3.0-or-later
#include "savedfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quv {
namespace {

[[noreturn]] void failBySystem()
{
    throw FileError(qt_error_string(errno));
}

[[noreturn]] void refuseKind()
{
    throw FileError(QStringLiteral("it is no regular file"));
}

/// Unbuffered, so that each write tells what has become of it.
void openForSaving(QSaveFile &file)
{
    struct stat present = {};
    // a device must not be replaced by a file
    if (stat(QFile::encodeName(file.fileName()), &present) == 0 && !S_ISREG(present.st_mode))
        refuseKind();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw FileError(file.errorString());
}

/// The one name of a file that may have several, through links as well, and that may be still to come.
QString oneName(const QString &path)
{
    QFileInfo info(path);
    constexpr int MostLinks = 40; // as the system follows
    for (int links = 0; info.isSymLink() && !info.exists() && links < MostLinks; ++links)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : folder + QLatin1Char('/') + info.fileName();
}

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

} // namespace

QByteArray loadFile(const QString &path, int most)
{
    // without waiting for the writer of a pipe
    const int descriptor = ::open(QFile::encodeName(path), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        failBySystem();
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    struct stat kind = {};
    if (fstat(descriptor, &kind) != 0)
        failBySystem();
    if (!S_ISREG(kind.st_mode))
        refuseKind();
    QByteArray content = file.read(most);
    if (file.error() != QFileDevice::NoError)
        throw FileError(file.errorString());
    return content;
}

void saveFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    openForSaving(file);
    // A disk that fills up takes a part, and tells why only when the rest is to follow.
    for (int done = 0; done < content.size();) {
        const qint64 written = file.write(content.constData() + done, content.size() - done);
        if (written <= 0)
            throw FileError(file.errorString());
        done += static_cast<int>(written);
    }
    if (fsync(file.handle()) != 0)
        failBySystem();
    if (!file.commit())
        throw FileError(file.errorString());
}

void checkSavable(const QString &path)
{
    QSaveFile file(path);
    openForSaving(file);
    file.cancelWriting();
}

FileLock::FileLock(const QString &path)
{
    m_path = QFile::encodeName(oneName(path) + QStringLiteral(".lock"));
    constexpr mode_t Mode = 0644;
    while (true) {
        m_file = ::open(m_path, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, Mode);
        if (m_file < 0)
            failBySystem();
        if (flock(m_file, LOCK_EX | LOCK_NB) != 0) {
            const bool isTaken = errno == EWOULDBLOCK;
            const QString reason =
                isTaken ? QStringLiteral("another process uses it") : qt_error_string(errno);
            ::close(m_file);
            throw FileError(reason);
        }
        struct stat locked = {};
        struct stat named = {};
        // whoever had it before may have removed it meanwhile
        if (fstat(m_file, &locked) == 0 && stat(m_path, &named) == 0 && isSameFile(locked, named))
            return;
        ::close(m_file);
    }
}

FileLock::~FileLock()
{
    unlink(m_path);
    ::close(m_file);
}

} // namespace quv
