// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/memberfacts_p.h"

#include "base/argumentteller_p.h"

#include <QtCore/QByteArray>

namespace quv {

namespace {

bool isSame(const Refusal &a, const Refusal &b)
{
    return qstrcmp(a.code, b.code) == 0 && qstrcmp(a.text, b.text) == 0;
}

/** What an object, or the elements of a list of objects, are refused with by their own class. */
void appendOwnRefusals(QList<RefusalFacts> &refusals, const FieldType &type)
{
    for (std::size_t i = 0; i < type.ownRefusalCount; ++i) {
        const auto &[when, refusal] = type.ownRefusals[i];
        const bool isOfOtherType = qstrcmp(when, "another type") == 0;
        const char *before = !type.isList ? "" : isOfOtherType ? "an element of " : "an element ";
        appendRefusal(refusals, "XML-RPC", QByteArray(before) + when, refusal);
    }
}

/**
 * A type without a reader of variants is that of a list which the answer reads by its elements. Where both refusals of one say the same,
 * the list has its code for both.
 */
void appendInList(QList<RefusalFacts> &refusals, const MemberRow &row)
{
    const bool byElements = row.type && !row.type->readVariant && isGiven(row.inList);
    if (byElements && !isSame(row.element, row.otherType) && qstrcmp(row.element.text, row.inList.text) != 0)
        appendRefusal(refusals, "list", row.elementWhen, row.element);
    appendRefusal(refusals, "list", byElements ? "an element of another type" : "missing or another type",
                  row.inList);
    appendRefusal(refusals, "list", row.alsoInListWhen, row.alsoInList);
}

MemberFacts factsOf(const MemberRow &row)
{
    MemberFacts member;
    member.key = QString::fromUtf8(row.key);
    member.type = QString::fromLatin1(row.type ? row.type->name : fieldType<bool>().name);
    member.meaning = QString::fromUtf8(row.type ? row.meaning : "always false");
    if (row.isFilled)
        member.meaning +=
            QLatin1String(member.meaning.isEmpty() ? "only when not empty" : "; only when not empty");
    member.required = isGiven(row.missing);
    if (isSame(row.missing, row.otherType)) {
        appendRefusal(member.refusals, "XML-RPC", "missing or another type", row.missing);
    } else {
        appendRefusal(member.refusals, "XML-RPC", "missing", row.missing);
        appendRefusal(member.refusals, "XML-RPC", row.otherWhen, row.otherType);
    }
    if (row.type)
        appendOwnRefusals(member.refusals, *row.type);
    if (!isSame(row.element, row.otherType))
        appendRefusal(member.refusals, "XML-RPC", row.elementWhen, row.element);
    appendInList(member.refusals, row);
    for (RefusalFacts &refusal : member.refusals)
        refusal.text.replace(QLatin1String("%1"), member.key);
    return member;
}

} // namespace

QList<MemberFacts> factsOf(const std::vector<MemberRow> &rows)
{
    QList<MemberFacts> members;
    for (const MemberRow &row : rows) {
        if (row.uses & Write)
            members.append(factsOf(row));
    }
    return members;
}

} // namespace quv
