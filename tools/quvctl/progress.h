// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <optional>

class CmdStatus;

namespace quv {

/**
 * Shows on standard output how far a command is: on a terminal one line that is drawn again and again, elsewhere a line
 * whenever the state has changed, or the percentage by 10.
 */
class Progress
{
public:
    Progress();
    ~Progress(); ///< ends the line that is drawn
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void tell(const CmdStatus &status);

private:
    struct Told
    {
        int state = 0;
        int percentage = 0;
    };

    bool isNews(const CmdStatus &status) const;

    bool m_redraws = false;
    std::optional<Told> m_told{};
};

} // namespace quv
