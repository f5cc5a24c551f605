// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vector>

namespace quv {

/// One text of a code, and who refuses with it. What the sources do not tell is empty.
struct Explanation
{
    const char *code;
    const char *text;      ///< UTF-8; an ellipsis stands for what only the refused thing tells
    const char *names;     ///< what stands in its place, when that is known before; several by ", "
    const char *refuser;   ///< the class
    const char *form;      ///< in which what was refused came, or what was being done
    const char *when;      ///< a word or two; of the subject, where there is one
    const char *functions; ///< where it is raised; several by ", "
    const char *file;
    const char *subject = ""; ///< the argument, the member or the answer that a description refuses
};

/// All, sorted by code. Made from the sources when quvctl is built.
const std::vector<Explanation> &explanations();

} // namespace quv
