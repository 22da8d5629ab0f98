// The bytes of an input, taken one after another as decisions.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

namespace tirelune {

class SuiteDOctets {
public:
    explicit SuiteDOctets(std::span<const std::uint8_t> octets) : octets_(octets) {}

    [[nodiscard]] bool Epuisée() const { return octets_.empty(); }
    // 0 for ever once all is taken: the tamest decision.
    std::uint8_t Octet()
    {
        if (octets_.empty())
            return 0;
        const auto premier = octets_.front();
        octets_ = octets_.subspan(1);
        return premier;
    }
    std::size_t Parmi(std::size_t n)
    {
        if (n == 0)
            return 0;
        const std::size_t tiré = Octet();
        return (n > UINT8_MAX ? tiré << 8U | Octet() : tiré) % n;
    }

private:
    std::span<const std::uint8_t> octets_;
};

} // namespace tirelune
