// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "serialprotocommand.h"

#include <type_traits>

namespace quv {

struct CommandFacts;

// The layer between a command class and its base that makes all that is alike in commands out of one description, the struct
// Description that the class declares and its source defines (base/describedcommand_p.h tells what it holds). The members are
// made where that source instantiates the layer:
//
//     template class quv::DescribedCommand<DispenserStatusCmd, SerialProtoCommand>;

/** What the layer adds for a Base whose answers are no tokens: nothing. */
template <class Leaf, class Base, bool takesTokens = std::is_base_of_v<SerialProtoCommand, Base>>
class TokenAnswered : public Base
{
protected:
    using Base::Base;
};

/** Builds answers from the firmware's tokens. */
template <class Leaf, class Base>
class QUVPROTOCOL_EXPORT TokenAnswered<Leaf, Base, true> : public Base
{
public:
    using Base::buildProtoAnswer;
    // marked by itself too: clang does not hand the mark of a partial specialization down
    QUVPROTOCOL_EXPORT bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;

protected:
    using Base::Base;
};

/** Derives Leaf from Base by its description. */
template <class Leaf, class Base>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it is virtual, as that of Base
class QUVPROTOCOL_EXPORT DescribedCommand : public TokenAnswered<Leaf, Base>
{
public:
    ~DescribedCommand() override;

    Base *clone() const override = 0; // each class writes its own: a forgotten one does not compile

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    using TokenAnswered<Leaf, Base>::buildProtoAnswer;
    using TokenAnswered<Leaf, Base>::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    /** Adds what the description knows of the command. */
    static void tell(CommandFacts &facts);

protected:
    explicit DescribedCommand(const FW_Machine *machine = nullptr);
    // Both only let the base check and count the arguments; the class reads them.
    explicit DescribedCommand(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine = nullptr);
    explicit DescribedCommand(const QList<QVariant> &list, const FW_Machine *machine = nullptr);
    DescribedCommand(const DescribedCommand &other);

    /** All arguments as in a command that was built without any; for a class to make public. */
    void setDefaults();

    // Both read the arguments as the description tells; refusals name the \a function.
    void read(const XmlRpc::XmlRpcValue &value, const char *function);
    void read(const QList<QVariant> &list, const char *function);

private:
    Leaf &leaf() { return static_cast<Leaf &>(*this); }
    const Leaf &leaf() const { return static_cast<const Leaf &>(*this); }
};

} // namespace quv
