// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QString>

/** Questions about files and folders, and the separators in paths. */
class QUVFRAMEWORK_EXPORT FW_FileUtils
{
public:
    /** True for a folder that is there and in which files can be made. */
    static bool isDirWritable(const QString &path);
    /** True for a folder that is there and whose files can be listed. */
    static bool isDirReadable(const QString &path);
    /** The path with one separator at its end; no path stays none. */
    static QString appendEndSeparator(const QString &path);
    /** The path without separators at its end; the root stays what it is. */
    static QString removeEndSeparator(const QString &path);
    /** What stands behind the last separator, with or without the extension. */
    static QString getFileName(const QString &path, bool withExtension);
    /** What stands behind the last dot of the file's name; empty without a dot. */
    static QString getFileExtension(const QString &path);
};
