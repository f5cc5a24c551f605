// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/pourrequest.h"

#include "firmware/wirereader.h"

#include <QtCore/QSet>

#include <algorithm>
#include <limits>
#include <tuple>

namespace quv {
namespace {

constexpr int MaxCircuits = 255; // as many as there are serial addresses
constexpr int PurgeMark = 64;
constexpr int FieldsOfTint2 = 6;
constexpr int AnyNumber = std::numeric_limits<int>::max();
constexpr int FieldsBeforeStrokes = 3; // position, queue, speed

using Reader = WireReader;

PourPart readCircuit(Reader &reader)
{
    PourPart part;
    part.position = reader.next(1, AnyNumber);
    part.queue = reader.next(0, AnyNumber);
    part.speed = reader.next(1, AnyNumber);
    return part;
}

PourPart readTintCircuit(Reader &reader)
{
    PourPart part = readCircuit(reader);
    part.amount = reader.nextCounted(1);
    return part;
}

PourPart readTint2Circuit(Reader &reader)
{
    PourPart part = readCircuit(reader);
    part.nozzleValve = reader.next(0, AnyNumber);
    part.amount = reader.nextCounted(1);
    part.checkLevel = reader.nextCounted(0);
    return part;
}

using Parts = std::vector<PourPart>;
using PositionTest = std::function<bool(int)>;

std::optional<Parts> readTintCircuits(Reader &reader, int counted, PourPart (*readOne)(Reader &))
{
    Parts parts;
    while (!reader.atEnd()) {
        if (static_cast<int>(parts.size()) == counted)
            return std::nullopt;
        parts.push_back(readOne(reader));
    }
    return reader.isGood() ? std::optional<Parts>(std::move(parts)) : std::nullopt;
}

/// Divides a list of strokes into its circuits.
class StrokesList
{
public:
    StrokesList(const QList<int> &numbers, int first, int circuits, const PositionTest &isThere)
        : m_numbers(numbers),
          m_first(first),
          m_circuits(circuits),
          m_isThere(isThere)
    {}

    std::optional<Parts> divided();

private:
    std::optional<Parts> dividedAlike(bool withStrokes) const;
    bool dividesMixed(bool onlyKnown);
    bool divide(int place);
    bool isRefused(const PourPart &part) const;
    std::optional<PourPart> circuitAt(int place, bool withStrokes, int &end) const;

    const QList<int> &m_numbers;
    int m_first = 0;
    int m_circuits = 0;
    const PositionTest &m_isThere;
    bool m_onlyKnown = false;
    Parts m_parts{};
    QSet<QPair<int, int>>
        m_deadEnds{}; ///< circuits found and place from which nothing fits, so that none is tried twice
};

std::optional<PourPart> StrokesList::circuitAt(int place, bool withStrokes, int &end) const
{
    Reader reader(m_numbers, place);
    PourPart part = readCircuit(reader);
    if (withStrokes)
        part.amount = reader.nextCounted(1);
    end = reader.place();
    // No sender writes strokes of none, nor a highest digit of 0.
    const bool isWritten = !withStrokes || (reader.isGood() && m_numbers.at(end - 1) != 0);
    return reader.isGood() && isWritten ? std::optional<PourPart>(part) : std::nullopt;
}

std::optional<Parts> StrokesList::dividedAlike(bool withStrokes) const
{
    Parts parts;
    int place = m_first;
    for (int i = 0; i < m_circuits; ++i) {
        const auto part = circuitAt(place, withStrokes, place);
        if (!part)
            return std::nullopt;
        parts.push_back(*part);
    }
    return place == m_numbers.size() ? std::optional<Parts>(std::move(parts)) : std::nullopt;
}

/// True for a circuit that the machine would refuse after those found so far.
bool StrokesList::isRefused(const PourPart &part) const
{
    const auto isThis = [&part](const PourPart &other) { return other.position == part.position; };
    return (m_isThere && !m_isThere(part.position)) || std::any_of(m_parts.begin(), m_parts.end(), isThis);
}

bool StrokesList::dividesMixed(bool onlyKnown)
{
    m_onlyKnown = onlyKnown;
    m_deadEnds.clear();
    return divide(m_first);
}

/// Divides what begins at \a place, and appends it to the parts; leaves them as they are when nothing fits.
bool StrokesList::divide(int place)
{
    const int found = static_cast<int>(m_parts.size());
    if (found == m_circuits)
        return place == m_numbers.size();
    if (m_deadEnds.contains({found, place}))
        return false;
    for (const bool withStrokes : {true, false}) {
        int end = 0;
        const auto part = circuitAt(place, withStrokes, end);
        if (!part || (m_onlyKnown && isRefused(*part)))
            continue;
        m_parts.push_back(*part);
        if (divide(end))
            return true;
        m_parts.pop_back();
    }
    m_deadEnds.insert({found, place});
    return false;
}

std::optional<Parts> StrokesList::divided()
{
    if (m_circuits > (m_numbers.size() - m_first) / FieldsBeforeStrokes)
        return std::nullopt;
    for (const bool withStrokes : {false, true}) {
        if (auto parts = dividedAlike(withStrokes))
            return parts;
    }
    return dividesMixed(true) || dividesMixed(false) ? std::optional<Parts>(m_parts) : std::nullopt;
}

bool isCriterion(PourLayout layout, int criterion)
{
    static const QList<int> tint{0, 1, 2, 3, 8, 16};
    static const QList<int> tint2{0, 1, 2, 8, 16};
    static const QList<int> strokes{1, 2, 8, 9, 16};
    return (layout == PourLayout::Tint    ? tint
            : layout == PourLayout::Tint2 ? tint2
                                          : strokes)
        .contains(criterion);
}

std::optional<Parts> readParts(PourLayout layout, const QList<int> &numbers, Reader &reader, int counted,
                               const PositionTest &isThere)
{
    switch (layout) {
    case PourLayout::Tint:
        return readTintCircuits(reader, counted, readTintCircuit);
    case PourLayout::Tint2:
        reader.next(FieldsOfTint2, FieldsOfTint2);
        return readTintCircuits(reader, counted, readTint2Circuit);
    case PourLayout::Strokes:
        break;
    }
    return StrokesList(numbers, reader.place(), counted, isThere).divided();
}

bool hasTwice(const Parts &parts)
{
    QSet<int> positions;
    return std::any_of(parts.begin(), parts.end(), [&positions](const PourPart &part) {
        const bool isKnown = positions.contains(part.position);
        positions.insert(part.position);
        return isKnown;
    });
}

} // namespace

bool PourPart::operator==(const PourPart &other) const
{
    const auto all = [](const PourPart &part) {
        return std::tie(part.position, part.queue, part.speed, part.nozzleValve, part.amount,
                        part.checkLevel);
    };
    return all(*this) == all(other);
}

std::optional<PourRequest> readPourRequest(PourLayout layout, const QList<int> &numbers,
                                           const std::function<bool(int)> &isThere)
{
    Reader reader(numbers);
    PourRequest request;
    request.criterion = reader.next(0, AnyNumber);
    request.isPurge = layout == PourLayout::Tint2 && (request.criterion & PurgeMark) != 0;
    if (request.isPurge)
        request.criterion &= ~PurgeMark;
    const int counted = reader.next(1, MaxCircuits);
    if (!reader.isGood() || !isCriterion(layout, request.criterion))
        return std::nullopt;
    auto parts = readParts(layout, numbers, reader, counted, isThere);
    if (!parts || parts->empty() || hasTwice(*parts))
        return std::nullopt;
    request.parts = std::move(*parts);
    return request;
}

} // namespace quv
