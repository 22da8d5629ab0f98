// Large inputs, so that a cost which grows faster than its text runs into the fuzzer's time limit.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace tirelune {

inline constexpr std::size_t GrandeTaille = 1 << 20;

// One input in 64 is worth the time.
inline bool VautEnGrand(std::string_view octets)
{
    static constexpr std::size_t UneSur = 64;
    return octets.size() % UneSur == 7;
}

// The input's own body again and again, between a head and an end.
inline std::string Agrandir(std::string_view tête, std::string_view corps)
{
    std::string grand{tête};
    grand.reserve(GrandeTaille + corps.size());
    while (!corps.empty() && grand.size() < GrandeTaille)
        grand += corps;
    return grand;
}

} // namespace tirelune
