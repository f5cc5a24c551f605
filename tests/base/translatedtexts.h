// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <memory>

namespace testing_base {

/** While it lives, every text of the library's context is translated to the same text between angle quotes. */
class TranslatedTexts
{
public:
    TranslatedTexts();
    ~TranslatedTexts();
    TranslatedTexts(const TranslatedTexts &) = delete;
    TranslatedTexts &operator=(const TranslatedTexts &) = delete;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/** The text as TranslatedTexts translates it. */
QString translation(const QString &text);

} // namespace testing_base
