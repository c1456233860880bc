#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>
#include <vector>

namespace kvopt::monkey {

/// Chance that is the same on every machine: the engine is fixed by the standard, its
/// distributions are not, so they are not used.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}
    /// Other chances for another name.
    Dice(std::uint64_t seed, std::string_view name) : engine_(Mixed(seed, name)) {}

    /// From 0 up to, and without, `end`; `end` is not 0.
    std::size_t Below(std::size_t end) { return static_cast<std::size_t>(engine_() % end); }
    bool Percent(std::size_t share) { return Below(100) < share; }
    template <class T>
    const T& Of(const std::vector<T>& values) {
        return values[Below(values.size())];
    }

private:
    static std::uint64_t Mixed(std::uint64_t seed, std::string_view name) {
        for (const char letter : name) {
            seed = (seed ^ static_cast<unsigned char>(letter)) * 0x100000001B3U;
        }
        return seed;
    }

    std::mt19937_64 engine_;
};

}  // namespace kvopt::monkey
