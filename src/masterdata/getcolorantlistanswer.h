// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "colorantsposlist.h"

#include <QtCore/QList>

/** The answer to GET_COLORANT_LIST: the colorants of a dispenser, the member "colorant_list" of a struct. */
class QUVPROTOCOL_EXPORT GetColorantListAnswer
    : public quv::DescribedAnswer<GetColorantListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char colorantList_TAG[] = "colorant_list";

    GetColorantListAnswer() = default;
    explicit GetColorantListAnswer(const QList<ColorantsPOSList> &colorants);
    explicit GetColorantListAnswer(const QList<FW_Colorant> &colorants); ///< with masks that are not told
    /** Throws DE03383 without an array, DE03387 for an element that cannot be made, and as FW_Colorant does. */
    explicit GetColorantListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element a ColorantsPOSList or an FW_Colorant. Throws DE03393 for another type, DE03387 for one that cannot be made, and as
     * FW_Colorant does.
     */
    explicit GetColorantListAnswer(QList<QVariant> &list);

    GetColorantListAnswer *clone() const override;

    const QList<ColorantsPOSList> &colorantList() const { return m_colorants; }

private:
    QList<ColorantsPOSList> m_colorants;
};
