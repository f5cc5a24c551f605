// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/arguments_p.h"
#include "base/argumentteller_p.h"

namespace quv {

// The commands of a session carry nothing but texts, and keep them where the base keeps arguments.

/** One of the texts. A refusal without a code is not told: such a text may be empty, or be no number. */
struct SessionText
{
    ArgumentName name;
    Refusal otherType;
    Refusal empty;
    Refusal noNumber; ///< with a code the text must hold an int
};

/** The text as it was read. Throws the refusal of what is wrong with it. */
void checkSessionText(const SessionText &text, const QString &read, const char *function);

/** All texts of the table, in its order. Source is where arguments come from. */
template <class Source, class Table>
QList<QVariant> readSessionTexts(const Source &source, const Table &table, const char *function)
{
    QList<QVariant> texts;
    for (const SessionText &text : table) {
        QString read;
        if (texts.size() >= source.size() || !source.decode(texts.size(), read))
            throwRefusal(text.otherType, function);
        checkSessionText(text, read, function);
        texts.append(read);
    }
    return texts;
}

/** Texts as an XML-RPC array, in UTF-8. */
XmlRpc::XmlRpcValue writtenSessionTexts(const QList<QVariant> &texts, bool *ok);

template <class Table>
void tellSessionTexts(const Table &table, ArgumentTeller &teller)
{
    const auto inBothForms = [](const Refusal &refusal) { return ArgumentRefusal(refusal, refusal); };
    for (const SessionText &text : table) {
        teller.argument(text.name, fieldType<QString>().name);
        teller.refuse("another type", inBothForms(text.otherType));
        teller.refuse("empty", inBothForms(text.empty));
        teller.refuse("no number", inBothForms(text.noNumber));
    }
}

} // namespace quv
