// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/taresetcmd.h"

#include "base/describedcommand_p.h"
#include "scale/scalewords_p.h"

struct TareSetCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TARE_SET;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal badUnit = {"DE02105", "Unit parameter: expected INT parameter"};
        constexpr quv::Refusal badUnitInList = {
            "DE02107", "Unit parameter: expected DOUBLE parameter"}; // users know it so
        archive.optional({"preset_value", "the tare, in the unit"}, self.m_presetValue,
                         {"DE02104", "DE02106", "Preset value parameter: expected DOUBLE parameter"});
        archive.optional({"scale_unit", quv::requestedUnit}, self.m_scaleUnit, {badUnit, badUnitInList});
    }
};

template class quv::DescribedCommand<TareSetCmd, ScaleProtoCommand>;

TareSetCmd::TareSetCmd(double presetValue, ScaleUtils::ScaleUnit unit)
    : m_presetValue(presetValue),
      m_scaleUnit(unit)
{}

TareSetCmd::TareSetCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

TareSetCmd::TareSetCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

TareSetCmd *TareSetCmd::clone() const
{
    return new TareSetCmd(*this);
}
