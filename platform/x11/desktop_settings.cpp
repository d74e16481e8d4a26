// What a desktop's settings ask for.
#include "platform/x11/desktop_settings.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace r7 {

namespace {

/// Takes numbers and texts from the front of foreign bytes; zeroes and nothing once they have run out.
class ByteReader final {
public:
    explicit ByteReader(std::string_view bytes) : left_(bytes) {}

    bool highest_first = false; ///< the order of a number's bytes
    bool ran_out() const { return ran_out_; }
    std::uint32_t number(std::size_t size)
    {
        std::uint32_t number = 0;
        const std::string_view bytes = take(size);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            number |= std::uint32_t{static_cast<std::uint8_t>(bytes[i])}
                      << 8 * (highest_first ? size - 1 - i : i);
        return number;
    }
    /// A text, and what fills it up to a multiple of four bytes.
    std::string_view text(std::size_t size)
    {
        const std::string_view text = take(size);
        take((4 - size % 4) % 4);
        return text;
    }

private:
    std::string_view take(std::size_t size)
    {
        ran_out_ = ran_out_ || size > left_.size();
        if (ran_out_) return {};
        const std::string_view taken = left_.substr(0, size);
        left_.remove_prefix(size);
        return taken;
    }

    std::string_view left_;
    bool ran_out_ = false;
};

} // namespace

double desktop_scale_of(std::string_view resources)
{
    constexpr std::string_view kName = "Xft.dpi:";
    double dpi = 96.0;
    while (!resources.empty()) {
        std::string_view line = resources.substr(0, resources.find('\n'));
        resources.remove_prefix(std::min(line.size() + 1, resources.size()));
        if (!line.starts_with(kName)) continue;
        line.remove_prefix(kName.size());
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        std::from_chars(line.data(), line.data() + line.size(), dpi);
    }
    return dpi >= 48.0 && dpi <= 768.0 ? dpi / 96.0 : 1.0;
}

// The layout is that of the XSETTINGS protocol, version 0.5.
std::optional<std::chrono::milliseconds> double_click_time_of(std::string_view settings)
{
    enum Type : std::uint32_t { kInteger = 0, kString = 1, kColor = 2 };
    ByteReader bytes(settings);
    bytes.highest_first = bytes.number(1) == 1;
    bytes.number(3);
    bytes.number(4); // how often they were changed
    const std::uint32_t count = bytes.number(4);
    for (std::uint32_t i = 0; i < count && !bytes.ran_out(); ++i) {
        const std::uint32_t type = bytes.number(1);
        bytes.number(1);
        const std::string_view name = bytes.text(bytes.number(2));
        bytes.number(4);                        // when it was changed
        if (type > kColor) return std::nullopt; // whose length nobody knows
        if (type == kString) bytes.text(bytes.number(4));
        if (type == kColor) bytes.text(8);
        if (type != kInteger) continue;
        const std::uint32_t value = bytes.number(4);
        if (name != "Net/DoubleClickTime" || bytes.ran_out()) continue;
        if (value < 50 || value > 5000) return std::nullopt;
        return std::chrono::milliseconds(value);
    }
    return std::nullopt;
}

} // namespace r7
