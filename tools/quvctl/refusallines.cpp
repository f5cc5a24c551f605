// SPDX-License-Identifier: LGPL-3.0-or-later
#include "refusallines.h"

#include "explanations.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace quv {

namespace {

struct Phrase
{
    const char *when;
    const char *words;
};

constexpr Phrase phrases[] = {
    {"missing", "%1 is missing"},
    {"another type", "%1 is of another type"},
    {"missing or another type", "%1 is missing or of another type"},
    {"cannot be made", "%1 cannot be made"},
    {"empty", "%1 is empty"},
    {"unreadable", "%1 cannot be read"},
    {"out of range", "%1 is out of range"},
    {"", "%1 cannot be made"}, // as an answer
};

bool areAlike(const RefusalLine &a, const RefusalLine &b)
{
    return a.code == b.code && a.when == b.when && a.text == b.text;
}

/// A form more of a line that is there already, or a new line.
void add(QList<RefusalLine> &lines, const RefusalLine &line)
{
    const auto known = std::find_if(lines.begin(), lines.end(),
                                    [&](const RefusalLine &other) { return areAlike(line, other); });
    if (known == lines.end())
        lines.append(line);
    else if (!known->forms.split(QStringLiteral(", ")).contains(line.forms))
        known->forms += QStringLiteral(", ") + line.forms;
}

/// Refusals of one member, or of several that differ in its name alone.
struct MemberRefusal
{
    RefusalFacts facts; ///< with an ellipsis for the member
    QString member;     ///< the first
    QString text;       ///< its own
    int members = 1;
};

QString withoutName(QString text, const QString &member)
{
    const QRegularExpression name(QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(member)));
    return text.replace(name, QStringLiteral("…"));
}

void add(QList<MemberRefusal> &refusals, const MemberFacts &member, const RefusalFacts &refusal)
{
    RefusalFacts common = refusal;
    common.text = withoutName(refusal.text, member.key);
    for (MemberRefusal &known : refusals) {
        if (known.facts.form == common.form && known.facts.when == common.when &&
            known.facts.code == common.code && known.facts.text == common.text) {
            ++known.members;
            return;
        }
    }
    refusals.append({common, member.key, refusal.text});
}

void addMembers(QList<RefusalLine> &lines, const QList<MemberFacts> &members)
{
    QList<MemberRefusal> refusals;
    for (const MemberFacts &member : members)
        for (const RefusalFacts &refusal : member.refusals)
            add(refusals, member, refusal);
    for (const MemberRefusal &refusal : refusals) {
        const bool alone = refusal.members == 1;
        add(lines, {refusal.facts.code, refusal.facts.form,
                    quv::inWords(refusal.facts.when, alone ? refusal.member : QStringLiteral("a member")),
                    alone ? refusal.text : refusal.facts.text});
    }
}

} // namespace

QString inWords(const QString &when, const QString &of)
{
    for (const Phrase &phrase : phrases)
        if (when == QLatin1String(phrase.when))
            return QString::fromLatin1(phrase.words).arg(of);
    if (when.startsWith(QLatin1String("an element ")))
        return QStringLiteral("%1 has %2").arg(of, when);
    return (when.startsWith(QLatin1String("an ")) ? QStringLiteral("%1 is %2") : QStringLiteral("%1: %2"))
        .arg(of, when);
}

QString whenInWords(const Explanation &explanation)
{
    const QString when = QString::fromUtf8(explanation.when);
    return *explanation.subject == '\0' ? when : inWords(when, QString::fromUtf8(explanation.subject));
}

QList<RefusalLine> refusalLines(const QList<RefusalFacts> &ofRequest, const CommandFacts &command)
{
    QList<RefusalLine> lines;
    for (const RefusalFacts &refusal : ofRequest)
        add(lines, {refusal.code, refusal.form, refusal.when, refusal.text});
    for (const ArgumentFacts &argument : command.arguments)
        for (const RefusalFacts &refusal : argument.refusals)
            add(lines, {refusal.code, refusal.form, inWords(refusal.when, argument.name), refusal.text});
    addMembers(lines, command.members);
    for (const RefusalFacts &refusal : command.answerRefusals)
        add(lines,
            {refusal.code, refusal.form, inWords(refusal.when, QStringLiteral("the answer")), refusal.text});
    return lines;
}

} // namespace quv
