// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_error.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

/**
 * Errors of all kinds, in the order in which they were told. The list owns its errors; copying it copies them. It travels in a QVariant
 * under its name, also as the list of the maps that its errors' structs are.
 */
class QUVFRAMEWORK_EXPORT FW_ErrorList
{
public:
    FW_ErrorList() = default;
    /** Takes the variants that hold an error of any kind or another FW_ErrorList; others are passed over. */
    explicit FW_ErrorList(const QList<QVariant> &errors);
    explicit FW_ErrorList(const QList<FW_Error *> &errors); ///< copies each; null pointers are passed over
    /** An array with one struct an error. Throws FW_Exception DE03006 for anything else, or the error's own. */
    explicit FW_ErrorList(const XmlRpc::XmlRpcValue &value);
    FW_ErrorList(const FW_ErrorList &other);
    FW_ErrorList(FW_ErrorList &&other) noexcept = default;
    FW_ErrorList &operator=(const FW_ErrorList &other);
    FW_ErrorList &operator=(FW_ErrorList &&other) noexcept = default;
    ~FW_ErrorList();

    void clear();
    bool isEmpty() const { return m_errors.empty(); }
    int size() const { return static_cast<int>(m_errors.size()); }

    void append(const FW_Error *error); ///< a copy; a null pointer adds nothing
    void append(const FW_DriverError &error);
    void append(const FW_ErrorList &errors);
    void append(const QList<FW_HwError> &errors);
    void append(const QList<FW_ConfError> &errors);
    void append(const XmlRpc::XmlRpcValue &value); ///< decodes one error; throws FW_Exception
    /** Adds what the variant holds, an error of any kind or another list; false when there is no error in it. */
    bool appendHeld(const QVariant &variant);

    /** The error at \a index, owned by the list; null when there is none. */
    const FW_Error *operator[](int index) const;
    bool operator==(const FW_ErrorList &other) const;
    bool operator!=(const FW_ErrorList &other) const { return !(*this == other); }

    XmlRpc::XmlRpcValue toXmlRpcValue() const; ///< an array, empty when the list is
    /** The errors of one FW_Error::Type, in order; they stay owned by the list. */
    QList<FW_Error *> filterErrorTypes(int type) const;

private:
    std::vector<std::unique_ptr<FW_Error>> m_errors;
};

Q_DECLARE_METATYPE(FW_DriverError)
Q_DECLARE_METATYPE(FW_HwError)
Q_DECLARE_METATYPE(FW_ConfError)
Q_DECLARE_METATYPE(FW_ErrorList)
