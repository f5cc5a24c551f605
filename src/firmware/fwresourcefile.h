// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/tstring.h"
#include "../quvprotocol_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A file that a machine's firmware keeps, in the driver's hands. Over XML-RPC a struct of "res_data_stream" (base64; a text, whose
 * bytes they are, is read as well), "res_name" (string), "res_type" and "res_index" (ints). Travels in a QVariant under its name, also
 * as the map that its struct is, and in a QList.
 */
struct QUVPROTOCOL_EXPORT FwResourceFile
{
    /** What kind of file it is; what was read may hold any number. */
    enum ResourceType : int { GenericFile = 0, ConfigurationFile, MessageFile, DumpFile, CorruptedFile };

    static constexpr char dataStream_TAG[] = "res_data_stream";
    static constexpr char name_TAG[] = "res_name";
    static constexpr char type_TAG[] = "res_type";
    static constexpr char index_TAG[] = "res_index";

    FwResourceFile() = default;
    FwResourceFile(QByteArray fileData, QString fileName, ResourceType fileType, int fileIndex);
    /** Throws DE02719 (data), DE02720 (name), DE02721 (type) or DE02782 (index): a member is missing or of another type. */
    explicit FwResourceFile(const XmlRpc::XmlRpcValue &value);
    /**
     * The file at \a path: its content and its name, and the type that its extension tells. Throws DE02716 (empty path), DE02717 (it
     * cannot be read), DE02718 (it is empty).
     */
    explicit FwResourceFile(QString path);
    explicit FwResourceFile(const QByteArray &) = delete; // would be a path
    explicit FwResourceFile(const char *) = delete; // would be an XML-RPC value, as would the next three
    explicit FwResourceFile(bool) = delete;
    explicit FwResourceFile(int) = delete;
    explicit FwResourceFile(double) = delete;

    void clear(); ///< as a default one
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /** "cmp", "txt" and "dmp" in capitals or small letters tell the type; anything else is a generic file. */
    void setResourceTypeFromFileExtension(QString extension);
    /**
     * The name, and the type by all that follows its first dot: "abc.tar.cmp" is a generic file here, and a configuration when it is
     * loaded from its path.
     */
    void setResourceNameAndType(QString fileName);
    /** The type whose files the firmware numbers so, from 245 (corrupted) down to 241; of any other number it stays as it is. */
    void setResourceTypeValue(int firmwareIndex);
    int getResourceIndexOfType() const;     ///< the inverse; 0 for a type that there is not
    TString getResourceDescription() const; ///< the type in words; empty for a type that there is not
    QString findSAPcode() const;            ///< the first letters and digits of a configuration file's name

    /** Without a dot; empty for a corrupted file and for a type that there is not. */
    static QString resourceFileExtension(ResourceType fileType);
    /** "*.cmp" for each type; with a text one filter of all types, "Files (*.cmp *.txt)". Empty without a type. */
    static QStringList getResourceFileNameFilters(const QList<ResourceType> &types, QString text);

    bool operator==(const FwResourceFile &other) const; ///< all fields
    bool operator!=(const FwResourceFile &other) const { return !(*this == other); }

    QByteArray dataStream;
    QString name;
    int type = ConfigurationFile;
    int index = 0;
};

using ResourceType = FwResourceFile::ResourceType;

Q_DECLARE_METATYPE(FwResourceFile)
