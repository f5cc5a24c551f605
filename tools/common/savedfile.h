// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <stdexcept>

namespace quv {

/// A file that cannot be read, written or locked. The text is the reason, for the user, without the path.
class FileError : public std::runtime_error
{
public:
    explicit FileError(const QString &reason) : std::runtime_error(reason.toStdString()) {}
};

/// The first \a most bytes of a regular file. Anything else, such as a pipe, is refused and not waited for. \throws FileError
QByteArray loadFile(const QString &path, int most);

/// Replaces the file as a whole when all has reached the disk; on failure it stays as it was. \throws FileError
void saveFile(const QString &path, const QByteArray &content);
/// \throws FileError for what cannot be replaced: no regular file, or a folder that takes none
void checkSavable(const QString &path);

/// Keeps other processes from a file for as long as it stands, by a file "PATH.lock" beside it. Ends with the process.
class FileLock
{
public:
    /// \throws FileError when another process has it
    explicit FileLock(const QString &path);
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

private:
    QByteArray m_path{};
    int m_file = -1;
};

} // namespace quv
