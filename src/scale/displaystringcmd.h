// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "../base/scaleprotocommand.h"

#include <QtCore/QString>

/** DISPLAY_STRING: shows a text on the display of the scale. */
class QUVPROTOCOL_EXPORT DisplayStringCmd : public quv::DescribedCommand<DisplayStringCmd, ScaleProtoCommand>
{
public:
    struct Description;

    DisplayStringCmd() = default; ///< no text
    explicit DisplayStringCmd(const QString &displayString);
    /** The text, optional. Throws DE02245 for another type. */
    explicit DisplayStringCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02246. */
    explicit DisplayStringCmd(QList<QVariant> list);
    explicit DisplayStringCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DisplayStringCmd(int) = delete;
    explicit DisplayStringCmd(double) = delete;
    explicit DisplayStringCmd(const char *) = delete;

    DisplayStringCmd *clone() const override;

    const QString &displayString() const { return m_displayString; }

private:
    QString m_displayString;
};
