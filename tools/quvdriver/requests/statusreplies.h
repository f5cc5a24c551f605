// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <mutex>
#include <vector>

namespace quv {

/// What a reply to a question for the status follows from.
struct StatusSource
{
    int module = 0;
    QStringList tokens{}; ///< that the firmware has answered
    qint64 time = 0;      ///< milliseconds that it took

    bool operator==(const StatusSource &other) const
    {
        return time == other.time && module == other.module && tokens == other.tokens;
    }
};

/// The last replies that told a status, as they were written. Clients that watch a machine ask many times a second, and mostly
/// nothing has changed. Any number of threads may use them.
class StatusReplies
{
public:
    static constexpr std::size_t MaxKept = 16;

    /// Empty when there is none.
    QByteArray find(const StatusSource &source) const;
    void keep(const StatusSource &source, const QByteArray &document);

private:
    struct Reply
    {
        StatusSource source{};
        QByteArray document{};
    };

    mutable std::mutex m_mutex{}; ///< guards what follows
    std::vector<Reply> m_replies{};
    std::size_t m_next = 0; ///< the one that gives way
};

} // namespace quv
