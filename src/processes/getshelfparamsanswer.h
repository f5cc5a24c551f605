// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to GET_SHELF_PARAMS, which the driver gives from its configuration: to what the shelf's heights refer. */
class QUVPROTOCOL_EXPORT GetShelfParamsAnswer
    : public quv::DescribedAnswer<GetShelfParamsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char shelfRefPlane_TAG[] = "shelf_ref_plane";
    static constexpr char shelfRefHeight_TAG[] = "shelf_ref_height";

    GetShelfParamsAnswer() = default;
    GetShelfParamsAnswer(bool hasReferencePlane, int referenceHeight);
    /** Throws DE02941 without the plane (bool), DE02942 without the height (int). */
    explicit GetShelfParamsAnswer(const XmlRpc::XmlRpcValue &value);
    explicit GetShelfParamsAnswer(QList<QVariant> &list); ///< plane and height; throws the same

    GetShelfParamsAnswer *clone() const override;

    bool hasReferencePlane() const { return m_referencePlane; }
    int referenceHeight() const { return m_referenceHeight; } ///< millimetres

private:
    bool m_referencePlane = false;
    int m_referenceHeight = 0;
};
