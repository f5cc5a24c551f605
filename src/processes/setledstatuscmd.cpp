// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setledstatuscmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "base/wire_p.h"

namespace {

constexpr char invalid[] = "SetLedStatusCmd: invalid parameter";

bool isColour(const QString &text)
{
    return text.isEmpty() ||
           QColor::isValidColor(text); // it says nothing about a bad one, unlike the constructor
}

QString textOf(const QColor &colour)
{
    return colour.isValid() ? colour.name(QColor::HexArgb) : QString();
}

QColor colourOf(const QString &text)
{
    return text.isEmpty() ? QColor() : QColor(text);
}

/** The list with its colour as the text that travels. */
QList<QVariant> withColourText(QList<QVariant> list)
{
    constexpr int colour = 2;
    if (list.value(colour).userType() == QMetaType::QColor)
        list[colour] = textOf(list.at(colour).value<QColor>());
    return list;
}

} // namespace

struct SetLedStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_LED_STATUS;
    static constexpr auto commandText = "Led status";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Switching led status");

    /** The arguments as they travel. */
    struct Arguments
    {
        Arguments() : Arguments(SetLedStatusCmd()) {}
        explicit Arguments(const SetLedStatusCmd &source)
            : led(source.m_led),
              mode(static_cast<int>(source.m_mode)),
              colour(textOf(source.m_colour))
        {}

        int led;
        int mode;
        QString colour;
    };

    template <class Archive>
    static void arguments(Arguments &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal badLed = {"DE02271", "DE02274", invalid};
        constexpr quv::ArgumentRefusal badMode = {"DE02272", "DE02335", invalid};
        constexpr quv::ArgumentRefusal badColour = {"DE02273", "DE02336", invalid};
        archive.required("led", self.led, badLed, badLed);
        archive.optional({"mode", "0 shows the colour, 245 is not set"}, self.mode, badMode);
        archive.refuseUnless(checkLedMode(self.mode), badMode);
        archive.optional({"colour", R"("#AARRGGBB", "#RRGGBB" or a name; empty for none)"}, self.colour,
                         badColour);
        archive.refuseUnless(isColour(self.colour), badColour);
    }

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        Arguments fresh;
        arguments(fresh, teller);
    }

    template <class Reader>
    static void read(SetLedStatusCmd &self, Reader reader)
    {
        Arguments given;
        arguments(given, reader);
        self.m_led = given.led;
        self.m_mode = static_cast<LedMode>(given.mode);
        self.m_colour = colourOf(given.colour);
    }
};

template class quv::DescribedCommand<SetLedStatusCmd, SerialProtoCommand>;

SetLedStatusCmd::SetLedStatusCmd(int led, LedMode mode, const QColor &colour)
    : m_led(led),
      m_mode(mode),
      m_colour(colour)
{}

SetLedStatusCmd::SetLedStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    Description::read(*this, quv::ValueReader(value, Q_FUNC_INFO));
}

SetLedStatusCmd::SetLedStatusCmd(QList<QVariant> list) : DescribedCommand(list)
{
    list = withColourText(list);
    Description::read(*this, quv::ListReader(list, Q_FUNC_INFO));
}

SetLedStatusCmd *SetLedStatusCmd::clone() const
{
    return new SetLedStatusCmd(*this);
}

QList<QVariant> SetLedStatusCmd::parameters() const
{
    quv::ListWriter writer;
    Description::Arguments given(*this);
    Description::arguments(given, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue SetLedStatusCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    Description::Arguments given(*this);
    return quv::writtenArguments([&](auto &archive) { Description::arguments(given, archive); });
}

QList<int> SetLedStatusCmd::serialParameters(int) const
{
    constexpr int size = 7;
    QList<int> parameters = {m_led, static_cast<int>(m_mode)};
    if (m_mode == LedMode::Colour)
        quv::appendDigits(parameters, m_colour.rgba());
    while (parameters.size() < size)
        parameters.append(0);
    return parameters;
}

bool SetLedStatusCmd::checkLedMode(int mode)
{
    return mode >= 0 && mode <= quv::unsetDigit;
}
