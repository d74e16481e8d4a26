// UTF-8, read one code point at a time.
#include "platform/freetype/utf8.h"

#include <cassert>

namespace r7 {

namespace {

// How sequences of each length begin, and the least code point that needs that length.
struct Form
{
    unsigned lead_mask, lead;
    std::size_t length;
    char32_t least;
};
constexpr Form kForms[] = {
    {0x80, 0x00, 1, 0x0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
};

bool is_scalar_value(char32_t code_point)
{
    return code_point <= 0x10FFFF && !(code_point >= 0xD800 && code_point <= 0xDFFF);
}

// The length of the code point that `text` begins with, 0 where there is none.
std::size_t decode(std::string_view text, char32_t& code_point)
{
    const unsigned lead = static_cast<unsigned char>(text[0]);
    for (const Form& form : kForms) {
        if ((lead & form.lead_mask) != form.lead) continue;
        if (text.size() < form.length) return 0;
        code_point = lead & ~form.lead_mask;
        for (const char c : text.substr(1, form.length - 1)) {
            const unsigned byte = static_cast<unsigned char>(c);
            if ((byte & 0xC0) != 0x80) return 0;
            code_point = code_point << 6 | (byte & 0x3F);
        }
        return code_point >= form.least && is_scalar_value(code_point) ? form.length : 0;
    }
    return 0;
}

} // namespace

char32_t decode_utf8(std::string_view& rest)
{
    assert(!rest.empty());
    char32_t code_point = kReplacementCharacter;
    const std::size_t length = decode(rest, code_point);
    rest.remove_prefix(length ? length : 1);
    return length ? code_point : kReplacementCharacter;
}

} // namespace r7
