// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "canisterdata.h"

#include <QtCore/QList>

/** The answer to GET_CANISTER_LIST: the canisters of a dispenser, the member "canister_list" of a struct. */
class QUVPROTOCOL_EXPORT GetCanisterListAnswer
    : public quv::DescribedAnswer<GetCanisterListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char canisterList_TAG[] = "canister_list";

    GetCanisterListAnswer() = default;
    explicit GetCanisterListAnswer(const QList<CanisterData> &canisters);
    /** Throws DE03380 without an array, DE03384 for an element that cannot be made, and as CanisterData does. */
    explicit GetCanisterListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Of each canister the FW_Dispenser that has it and behind it, as a number of 64 bits, its ID. Throws DE03388 and DE03389 when
     * either is missing or of another type, DE03384 when the dispenser has no such canister or it cannot be made.
     */
    explicit GetCanisterListAnswer(QList<QVariant> &list);

    GetCanisterListAnswer *clone() const override;

    const QList<CanisterData> &canisterList() const { return m_canisters; }

private:
    QList<CanisterData> m_canisters;
};
