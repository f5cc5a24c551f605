// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** A valve of a circuit. */
class QUVFRAMEWORK_EXPORT FW_Valve
{
public:
    FW_Valve() = default;
    explicit FW_Valve(int id) : m_id(id) {}

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    int boardID() const { return m_boardID; }
    void setBoardID(int id) { m_boardID = id; }
    int valveType() const { return m_valveType; }
    void setValveType(int type) { m_valveType = type; }
    /** 0 for none, or one of the six types of valves. */
    static bool checkValveType(int type) { return type >= 0 && type <= 6; }

    bool operator==(const FW_Valve &other) const
    {
        return m_id == other.m_id && m_boardID == other.m_boardID && m_valveType == other.m_valveType;
    }
    bool operator!=(const FW_Valve &other) const { return !(*this == other); }

private:
    int m_id = 0;
    int m_boardID = 0;
    int m_valveType = 0;
};
