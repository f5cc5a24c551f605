// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "../base/machineinfo.h"

#include <QuvFramework/fw_serialport.h>

#include <QtCore/QList>
#include <QtCore/QSharedPointer>

/**
 * The answer to GET_CONNECTIONS: what the driver knows of the machine behind each connection. Each is an info by the kind of
 * device: of a dispenser or a mixer that is known as a DispenserInfo or a MixerInfo, of any other as a MachineInfo. Copies share
 * the infos.
 */
class QUVPROTOCOL_EXPORT GetConnectionsAnswer
    : public quv::DescribedAnswer<GetConnectionsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char connectionDataList_TAG[] = "connection_data_list";

    GetConnectionsAnswer() = default;
    explicit GetConnectionsAnswer(
        const QList<QSharedPointer<MachineInfo>> &connections); ///< null ones are left out
    /**
     * Throws DE03225 without the array, DE01884 when an info cannot be made, and what the info throws of an element: of device
     * type 1 with a "disp_id" a DispenserInfo, of type 4 with a "mixer_id" a MixerInfo, else a MachineInfo.
     */
    explicit GetConnectionsAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element a shared pointer, an info of one of the three classes or its map. Throws DE00937 for another type and DE01884
     * when the info cannot be made, and what the info throws of a bad map.
     */
    explicit GetConnectionsAnswer(QList<QVariant> &list);

    GetConnectionsAnswer *clone() const override;

    const QList<QSharedPointer<MachineInfo>> &connectionsList() const { return m_connections; }
    /** Those of one type of connection; none when there is no such type. */
    QList<QSharedPointer<MachineInfo>>
    getFilteredConnectionsList(FW_SerialPort::SerialPortConnType type) const;

private:
    QList<QSharedPointer<MachineInfo>> m_connections;
};
