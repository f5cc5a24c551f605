// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandfacts.h"

#include "base/translatedtexts.h"

#include <QuvFramework/fw_exception.h>

namespace testing_base {

Made tryToMake(const Making &making)
{
    try {
        return making();
    } catch (const FW_Exception &refusal) {
        ADD_FAILURE() << "refused with " << refusal.code().toStdString() << ", "
                      << refusal.text().toStdString();
    } catch (...) {
        ADD_FAILURE() << "failed with another exception";
    }
    return nullptr;
}

Phrase::Phrase(const char *source) : Phrase(source, "QuvProtocol", testing_base::translation(source)) {}

Phrase::Phrase(const char *source, const char *inContext, const QString &translation)
    : text(source),
      context(inContext),
      translated(translation)
{}

Phrase untranslated(const char *text)
{
    return {text, "", text};
}

Phrase inProgress()
{
    Phrase phrase("In progress", "", translation("In progress"));
    phrase.logged = phrase.translated;
    return phrase;
}

Words::Words() : Words("", inProgress()) {}

Words silence()
{
    return {"", untranslated("")};
}

std::vector<Gate> everyFirmware()
{
    return {{FW_Version(), true},       {FW_Version(1, 0), true},   {FW_Version(63, 0), true},
            {FW_Version(63, 38), true}, {FW_Version(70, 99), true}, {FW_Version(72, 0), true}};
}

Request &Request::value(const Value &array)
{
    valueForm = array;
    return *this;
}

Request &Request::onlyTyped()
{
    hasValueForm = false;
    hasListForm = false;
    return *this;
}

Request &Request::notReadBack()
{
    isReadBack = false;
    return *this;
}

Request &Request::onlyFromList()
{
    hasValueForm = false;
    return *this;
}

Request &Request::onlyFromValue()
{
    hasListForm = false;
    return *this;
}

std::string Request::name() const
{
    return shown(arguments) + (valueForm ? " or " + dumped(*valueForm) : "");
}

Request Request::alsoFromList(List other) const
{
    Request same = *this;
    same.onlyFromList().parameters(expectedParameters.value_or(arguments));
    same.typedForm = nullptr;
    same.arguments = std::move(other);
    return same;
}

Request Request::alsoFromValue(const Value &other) const
{
    Request same = *this;
    same.onlyFromValue().value(other);
    same.typedForm = nullptr;
    return same;
}

Request &Request::parameters(List expected)
{
    expectedParameters = std::move(expected);
    return *this;
}

Request &Request::written(std::string expected)
{
    expectedDump = std::move(expected);
    return *this;
}

Request &Request::notWritten()
{
    expectedDump = "[]";
    isWritten = false;
    return *this;
}

Request &Request::sends(QList<int> both)
{
    sent[0] = both;
    sent[1] = both;
    return *this;
}

Request &Request::sends(QList<int> family1, QList<int> family2)
{
    sent[0] = std::move(family1);
    sent[1] = std::move(family2);
    return *this;
}

Request &Request::module(int expected)
{
    moduleID = expected;
    return *this;
}

Request &Request::takes(long long milliseconds)
{
    time = milliseconds;
    return *this;
}

Request &Request::says(const Words &expected)
{
    words = expected;
    return *this;
}

Request &Request::holds(List expected)
{
    held = std::move(expected);
    return *this;
}

} // namespace testing_base
