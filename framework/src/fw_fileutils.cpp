// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_fileutils.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

bool FW_FileUtils::isDirWritable(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isWritable();
}

bool FW_FileUtils::isDirReadable(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isReadable();
}

QString FW_FileUtils::appendEndSeparator(const QString &path)
{
    return path.isEmpty() || path.endsWith(QDir::separator()) ? path : path + QDir::separator();
}

QString FW_FileUtils::removeEndSeparator(const QString &path)
{
    int size = path.size();
    while (size > 1 && path.at(size - 1) == QDir::separator())
        --size;
    return path.left(size);
}

QString FW_FileUtils::getFileName(const QString &path, bool withExtension)
{
    const QFileInfo file(path);
    return withExtension ? file.fileName() : file.completeBaseName();
}

QString FW_FileUtils::getFileExtension(const QString &path)
{
    return QFileInfo(path).suffix();
}
