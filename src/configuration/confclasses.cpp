// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/confclasses_p.h"

#include "configuration/acp_cdata.h"
#include "configuration/agi_cdata.h"
#include "configuration/bhl_cdata.h"
#include "configuration/cpt_cdata.h"
#include "configuration/fot_cdata.h"
#include "configuration/generic_cdata.h"
#include "configuration/gmc_cdata.h"
#include "configuration/hea_cdata.h"
#include "configuration/hum_cdata.h"
#include "configuration/ics_cdata.h"
#include "configuration/lck_cdata.h"
#include "configuration/lit_cdata.h"
#include "configuration/ltd_cdata.h"
#include "configuration/mot_cdata.h"
#include "configuration/nom_cdata.h"
#include "configuration/noz_cdata.h"
#include "configuration/plc_cdata.h"
#include "configuration/pro_cdata.h"
#include "configuration/pul_cdata.h"
#include "configuration/ram_cdata.h"
#include "configuration/sga_cdata.h"
#include "configuration/tem_cdata.h"
#include "configuration/ttd_cdata.h"
#include "configuration/uss_cdata.h"

#include <algorithm>
#include <type_traits>

namespace {

using Row = std::unique_ptr<ConfData>;

struct ConfClass
{
    int code;
    Row (*ofTokens)(const QStringList &row, int fieldCount);
    Row (*ofText)(const QString &row);
    Row (*ofMachine)(const FW_Machine *machine, int id);
    QStringList (*labels)();
};

template <class Structure>
constexpr ConfClass classOf(int code)
{
    return {code,
            [](const QStringList &row, int fieldCount) -> Row {
                return std::make_unique<Structure>(row, fieldCount);
            },
            [](const QString &row) -> Row { return std::make_unique<Structure>(row); },
            [](const FW_Machine *machine, [[maybe_unused]] int id) -> Row {
                if constexpr (std::is_constructible_v<Structure, int, const FW_Machine *>)
                    return std::make_unique<Structure>(id, machine);
                else
                    return std::make_unique<Structure>(machine);
            },
            &Structure::labels};
}

constexpr ConfClass classes[] = {
    classOf<ICS_cdata>(1),  classOf<NOM_cdata>(2),  classOf<GMC_cdata>(3),  classOf<ACP_cdata>(4),
    classOf<CPT_cdata>(5),  classOf<AGI_cdata>(6),  classOf<HUM_cdata>(7),  classOf<TEM_cdata>(8),
    classOf<SGA_cdata>(9),  classOf<RAM_cdata>(10), classOf<FOT_cdata>(11), classOf<BHL_cdata>(13),
    classOf<LIT_cdata>(14), classOf<TTD_cdata>(15), classOf<PUL_cdata>(16), classOf<HEA_cdata>(17),
    classOf<NOZ_cdata>(18), classOf<MOT_cdata>(19), classOf<LTD_cdata>(20), classOf<USS_cdata>(21),
    classOf<PRO_cdata>(22), classOf<LCK_cdata>(25), classOf<PLC_cdata>(26),
};

const ConfClass *classOfCode(int code)
{
    const auto found = std::find_if(std::begin(classes), std::end(classes),
                                    [code](const ConfClass &candidate) { return candidate.code == code; });
    return found == std::end(classes) ? nullptr : &*found;
}

Row ofCode(std::unique_ptr<GENERIC_cdata> row, int code)
{
    row->setCommandCode(code);
    return row;
}

} // namespace

namespace quv {

Row confDataOfTokens(int code, const QStringList &row, int fieldCount)
{
    if (const ConfClass *structure = classOfCode(code))
        return structure->ofTokens(row, fieldCount);
    return ofCode(std::make_unique<GENERIC_cdata>(row, fieldCount), code);
}

Row confDataOfText(int code, const QString &row)
{
    if (const ConfClass *structure = classOfCode(code))
        return structure->ofText(row);
    return ofCode(std::make_unique<GENERIC_cdata>(row), code);
}

Row confDataOfMachine(int code, const FW_Machine *machine, int id)
{
    const ConfClass *structure = classOfCode(code);
    return structure ? structure->ofMachine(machine, id) : nullptr;
}

QStringList confFieldLabels(int code)
{
    const ConfClass *structure = classOfCode(code);
    return structure ? structure->labels() : QStringList();
}

} // namespace quv
