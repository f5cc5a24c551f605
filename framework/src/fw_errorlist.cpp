// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_errorlist.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>

namespace {

bool registerType()
{
    qRegisterMetaType<FW_ErrorList>("FW_ErrorList");
    QMetaType::registerEqualsComparator<FW_ErrorList>();
    return QMetaType::registerConverter<FW_ErrorList, QList<QVariant>>(
        [](const FW_ErrorList &errors) { return DecodeXmlRpcVariant(errors.toXmlRpcValue()).toList(); });
}

const bool isRegistered = registerType();

} // namespace

FW_ErrorList::FW_ErrorList(const QList<QVariant> &errors)
{
    for (const QVariant &error : errors)
        appendHeld(error);
}

FW_ErrorList::FW_ErrorList(const QList<FW_Error *> &errors)
{
    for (const FW_Error *error : errors)
        append(error);
}

FW_ErrorList::FW_ErrorList(const XmlRpc::XmlRpcValue &value)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception(QStringLiteral("DE03006"), QStringLiteral("FW_ErrorList: expected array type"),
                           Q_FUNC_INFO);
    for (int i = 0; i < value.size(); ++i)
        append(value[i]);
}

FW_ErrorList::FW_ErrorList(const FW_ErrorList &other)
{
    append(other);
}

FW_ErrorList &FW_ErrorList::operator=(const FW_ErrorList &other)
{
    FW_ErrorList copy(other);
    m_errors.swap(copy.m_errors);
    return *this;
}

FW_ErrorList::~FW_ErrorList() = default;

void FW_ErrorList::clear()
{
    m_errors.clear();
}

void FW_ErrorList::append(const FW_Error *error)
{
    if (error)
        m_errors.emplace_back(error->clone());
}

void FW_ErrorList::append(const FW_DriverError &error)
{
    append(&error);
}

void FW_ErrorList::append(const FW_ErrorList &errors)
{
    const int count = errors.size(); // a list may be appended to itself
    m_errors.reserve(m_errors.size() + static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        append(errors[i]);
}

void FW_ErrorList::append(const QList<FW_HwError> &errors)
{
    for (const FW_HwError &error : errors)
        append(&error);
}

void FW_ErrorList::append(const QList<FW_ConfError> &errors)
{
    for (const FW_ConfError &error : errors)
        append(&error);
}

void FW_ErrorList::append(const XmlRpc::XmlRpcValue &value)
{
    m_errors.emplace_back(FW_Error::fromXmlRpcValue(value));
}

bool FW_ErrorList::appendHeld(const QVariant &variant)
{
    const int before = size();
    if (variant.canConvert<FW_DriverError>())
        append(variant.value<FW_DriverError>());
    else if (variant.canConvert<FW_HwError>())
        append(QList<FW_HwError>{variant.value<FW_HwError>()});
    else if (variant.canConvert<FW_ConfError>())
        append(QList<FW_ConfError>{variant.value<FW_ConfError>()});
    else if (variant.canConvert<FW_ErrorList>())
        append(variant.value<FW_ErrorList>());
    return size() > before;
}

const FW_Error *FW_ErrorList::operator[](int index) const
{
    return index >= 0 && index < size() ? m_errors[static_cast<std::size_t>(index)].get() : nullptr;
}

bool FW_ErrorList::operator==(const FW_ErrorList &other) const
{
    return std::equal(m_errors.begin(), m_errors.end(), other.m_errors.begin(), other.m_errors.end(),
                      [](const auto &mine, const auto &theirs) { return mine->equalTo(*theirs); });
}

XmlRpc::XmlRpcValue FW_ErrorList::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue array;
    array.setSize(size());
    for (int i = 0; i < size(); ++i)
        array[i] = (*this)[i]->toXmlRpcValue();
    return array;
}

QList<FW_Error *> FW_ErrorList::filterErrorTypes(int type) const
{
    QList<FW_Error *> filtered;
    for (const auto &error : m_errors) {
        if (error->errorType() == type)
            filtered.append(error.get());
    }
    return filtered;
}
