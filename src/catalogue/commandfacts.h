// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

// What the library's own tables know of a command, for those who explain it: tools, documents, user interfaces.

namespace quv {

/** A code and its text, with when it comes and in which form of the request or the answer. */
struct RefusalFacts
{
    QString form; ///< "XML-RPC", "list", "tokens" or "envelope"
    QString when; ///< "missing", "another type", ... ; empty for whatever fails
    QString code;
    QString text;
};

/** A positional argument. */
struct ArgumentFacts
{
    QString name;
    QString type;    ///< "int", "bool", "string", "formula", ...
    QString meaning; ///< unit and range, where the name does not say it
    bool optional = false;
    XmlRpc::XmlRpcValue defaultValue; ///< what holds when it is not given; empty for a required one
    QList<RefusalFacts> refusals;
};

/** A member of an answer's struct. */
struct MemberFacts
{
    QString key;
    QString type;
    QString meaning;
    bool required = false; ///< always there; an answer that is read without it is refused
    QList<RefusalFacts> refusals;
};

/** All that the tables know of a command. */
struct CommandFacts
{
    QString name;
    QString purpose; ///< what it is for, as one sentence
    QString
        className; ///< empty for a plain command, whose arguments are counted and do not travel over XML-RPC
    bool tellsArguments = false; ///< true when \a arguments are all that the command has
    QList<ArgumentFacts> arguments;
    QString answerClass; ///< empty for a plain answer
    bool tellsMembers = false;
    QList<MemberFacts> members;
    QList<RefusalFacts> answerRefusals; ///< what a failure to make the answer is called
};

/** What is known of the command; of an unknown name nothing, not even the name. */
QUVPROTOCOL_EXPORT CommandFacts commandFacts(const QString &name);

} // namespace quv
