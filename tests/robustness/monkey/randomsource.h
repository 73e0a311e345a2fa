// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_RANDOMSOURCE_H
#define MONKEY_RANDOMSOURCE_H

#include <QtCore/QList>

#include <random>

namespace Monkey {

/**
 * Random numbers that are the same for a seed with every compiler and library: the engine is fixed
 * by the standard, the distributions are our own because those of the standard library are not.
 */
class RandomSource
{
public:
    explicit RandomSource(quint64 seed) : m_engine(seed) {}

    /** 0 to @p count - 1; @p count is at least 1. */
    int below(int count) { return int(m_engine() % quint64(count)); }
    /** @p lowest to @p highest, both included. */
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    /** True once in @p count times. */
    bool oneIn(int count) { return below(count) == 0; }
    bool coin() { return oneIn(2); }

    /** One of the entries of a container that is not empty. */
    template <typename Container>
    auto pick(const Container& entries)
    {
        return *(std::begin(entries) + below(int(std::size(entries))));
    }

    /** The index of one of the weights, the more often the greater it is. */
    template <typename Container, typename Weight>
    int pickWeighted(const Container& entries, Weight weightOf)
    {
        int total = 0;
        for (const auto& entry : entries)
            total += weightOf(entry);
        int rest = below(total);
        int index = 0;
        for (const auto& entry : entries) {
            rest -= weightOf(entry);
            if (rest < 0)
                break;
            ++index;
        }
        return index;
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace Monkey

#endif
