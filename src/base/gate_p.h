// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_version.h>

namespace quv {

/** A firmware family that has something from the revision after \a aboveRevision on. */
struct FamilyGate
{
    static constexpr int always = -1;

    int family = 0;
    int aboveRevision = always;
};

/** True when the gate of the version's family lets its revision pass; \a others for a family without a gate. */
template <class Gates>
bool passesGate(const Gates &gates, const FW_Version &version, bool others = false)
{
    for (const FamilyGate &gate : gates) {
        if (gate.family == version.m_family)
            return gate.aboveRevision == FamilyGate::always || version.m_revision > gate.aboveRevision;
    }
    return others;
}

} // namespace quv
