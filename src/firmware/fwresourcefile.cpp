// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcefile.h"

#include "base/record_p.h"
#include "base/translation_p.h"
#include "firmware/bytes_p.h"
#include "firmware/fwresourcefile_p.h"

#include <QuvFramework/fw_fileutils.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

const bool isRegistered = RegisterTravellingList<FwResourceFile>("FwResourceFile", "QList<FwResourceFile>");

struct TypeOfFiles
{
    int type;
    int firmwareIndex;
    const char *extension;
    const char *description;
};

constexpr TypeOfFiles typesOfFiles[] = {
    {FwResourceFile::GenericFile, 244, "blb", QT_TRANSLATE_NOOP("QuvProtocol", "Generic resource file")},
    {FwResourceFile::ConfigurationFile, 243, "cmp", QT_TRANSLATE_NOOP("QuvProtocol", "Configuration file")},
    {FwResourceFile::MessageFile, 242, "txt", QT_TRANSLATE_NOOP("QuvProtocol", "Message file")},
    {FwResourceFile::DumpFile, 241, "dmp", QT_TRANSLATE_NOOP("QuvProtocol", "Dump file")},
    {FwResourceFile::CorruptedFile, 245, "", QT_TRANSLATE_NOOP("QuvProtocol", "File corrupted")},
};

/** The first row that fits; null when none does. */
template <class Fits>
const TypeOfFiles *rowThat(Fits fits)
{
    const auto *const found = std::find_if(std::begin(typesOfFiles), std::end(typesOfFiles), fits);
    return found == std::end(typesOfFiles) ? nullptr : found;
}

const TypeOfFiles *rowOf(int type)
{
    return rowThat([type](const TypeOfFiles &row) { return row.type == type; });
}

const quv::Record<FwResourceFile> &record()
{
    using File = FwResourceFile;
    static const quv::Record<File> record({
        quv::Member<File>(File::dataStream_TAG, &File::dataStream, quv::badFileData).as(quv::bytesOrText()),
        {File::name_TAG, &File::name, quv::badFileName},
        {File::type_TAG, &File::type, quv::badFileType},
        {File::index_TAG, &File::index, quv::badFileIndex},
    });
    return record;
}

} // namespace

FwResourceFile::FwResourceFile(QByteArray fileData, QString fileName, ResourceType fileType, int fileIndex)
    : dataStream(std::move(fileData)),
      name(std::move(fileName)),
      type(fileType),
      index(fileIndex)
{}

FwResourceFile::FwResourceFile(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

FwResourceFile::FwResourceFile(QString path)
{
    if (path.isEmpty())
        throw FW_Exception("DE02716", "FwResourceFile: empty file path given", Q_FUNC_INFO);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        dataStream = file.readAll();
    if (file.error() != QFileDevice::NoError) // half a file must not reach a machine
        throw FW_Exception("DE02717", "FwResourceFile: cannot open the file in read mode", Q_FUNC_INFO);
    if (dataStream.isEmpty())
        throw FW_Exception("DE02718", "FwResourceFile: empty file given", Q_FUNC_INFO);
    name = FW_FileUtils::getFileName(path, true);
    setResourceTypeFromFileExtension(FW_FileUtils::getFileExtension(path));
}

void FwResourceFile::clear()
{
    *this = FwResourceFile();
}

XmlRpc::XmlRpcValue FwResourceFile::toXmlRpcValue() const
{
    return record().encode(*this);
}

void FwResourceFile::setResourceTypeFromFileExtension(QString extension)
{
    const TypeOfFiles *row = rowThat([&](const TypeOfFiles &candidate) {
        return *candidate.extension &&
               extension.compare(QLatin1String(candidate.extension), Qt::CaseInsensitive) == 0;
    });
    type = row ? row->type : GenericFile;
}

void FwResourceFile::setResourceNameAndType(QString fileName)
{
    name = fileName;
    setResourceTypeFromFileExtension(QFileInfo(fileName).completeSuffix());
}

void FwResourceFile::setResourceTypeValue(int firmwareIndex)
{
    if (const TypeOfFiles *row =
            rowThat([=](const TypeOfFiles &candidate) { return candidate.firmwareIndex == firmwareIndex; }))
        type = row->type;
}

int FwResourceFile::getResourceIndexOfType() const
{
    const TypeOfFiles *row = rowOf(type);
    return row ? row->firmwareIndex : 0;
}

TString FwResourceFile::getResourceDescription() const
{
    const TypeOfFiles *row = rowOf(type);
    return row ? TString(row->description, quv::translationContext) : TString();
}

QString FwResourceFile::findSAPcode() const
{
    return type == ConfigurationFile ? getFirstAlphanumericPattern(name) : QString();
}

QString FwResourceFile::resourceFileExtension(ResourceType fileType)
{
    const TypeOfFiles *row = rowOf(fileType);
    return row ? QString::fromLatin1(row->extension) : QString();
}

QStringList FwResourceFile::getResourceFileNameFilters(const QList<ResourceType> &types, QString text)
{
    QStringList patterns;
    for (const ResourceType fileType : types)
        patterns.append(QStringLiteral("*.%1").arg(resourceFileExtension(fileType)));
    if (patterns.isEmpty() || text.isEmpty())
        return patterns;
    return {QStringLiteral("%1 (%2)").arg(text, patterns.join(QLatin1Char(' ')))};
}

bool FwResourceFile::operator==(const FwResourceFile &other) const
{
    return record().equal(*this, other);
}
