// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configuration/confrow_p.h"
#include "configuration/referenceconfdata.h"

#include <vector>

namespace quv {

/** All that there is to a structure of a shared part. Its file specialises referenceStructure for what it holds. */
template <class Shared>
struct ReferenceStructure
{
    int code = 0;
    ConfCodes codes;
    /** The refusal of the reference -1; null when it is like any other that no motor has. */
    const char *noReference = nullptr;
    const char *noReferenceText = "";
    void (*setDefaults)(Shared &shared) = nullptr;
    /** Takes the part of the reference from the dispenser: its `cmd_enabled`. */
    int (*take)(Shared &shared, const FW_Dispenser &dispenser) = nullptr;
    /** Gives it to the dispenser; false when no motor has the reference. */
    bool (*give)(const Shared &shared, FW_Dispenser &dispenser, bool enabled) = nullptr;
    std::vector<ConfField<Shared>> fields;
};

template <class Shared>
const ReferenceStructure<Shared> &referenceStructure();

} // namespace quv

template <class Shared>
ReferenceConfData<Shared>::ReferenceConfData() : ConfData(quv::referenceStructure<Shared>().code)
{
    clear();
}

template <class Shared>
ReferenceConfData<Shared>::ReferenceConfData(int reference, const FW_Machine *machine, const char *function)
    : ReferenceConfData()
{
    constexpr int none = -1;
    const auto &structure = quv::referenceStructure<Shared>();
    if (reference == none && structure.noReference)
        throw FW_Exception(structure.noReference, structure.noReferenceText, function);
    const FW_Dispenser &dispenser = quv::confDispenser(machine, structure.codes, function);
    m_shared.reference = reference;
    m_cmdEnabled = structure.take(m_shared, dispenser);
    m_parameters = quv::writtenConfParameters(structure.fields, m_shared);
}

template <class Shared>
ReferenceConfData<Shared>::ReferenceConfData(QStringList tokens, int fieldCount, const char *function)
    : ConfData(quv::referenceStructure<Shared>().code, tokens)
{
    clear();
    const auto &structure = quv::referenceStructure<Shared>();
    quv::readConfTokens(structure.fields, structure.codes, tokens, m_enabledFieldLength, fieldCount,
                        m_parameters, function);
    quv::updateLocalDataOrThrow(*this, structure.codes.tokensData, function);
}

template <class Shared>
ReferenceConfData<Shared>::ReferenceConfData(QString row, const char *function)
    : ConfData(quv::referenceStructure<Shared>().code, row)
{
    clear();
    quv::updateLocalDataOrThrow(*this, quv::referenceStructure<Shared>().codes.textData, function);
}

template <class Shared>
void ReferenceConfData<Shared>::clear()
{
    m_shared = Shared();
    quv::referenceStructure<Shared>().setDefaults(m_shared);
}

template <class Shared>
QStringList ReferenceConfData<Shared>::labels()
{
    return quv::confLabels(quv::referenceStructure<Shared>().fields);
}

template <class Shared>
bool ReferenceConfData<Shared>::updateLocalData(QString *error)
{
    return quv::readConfParameters(quv::referenceStructure<Shared>().fields, m_parameters, m_shared, error);
}

template <class Shared>
bool ReferenceConfData<Shared>::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *,
                                                    QList<int> *) const
{
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    return dispenser && quv::referenceStructure<Shared>().give(m_shared, *dispenser, m_cmdEnabled == Enabled);
}

template <class Shared>
XmlRpc::XmlRpcValue ReferenceConfData<Shared>::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
