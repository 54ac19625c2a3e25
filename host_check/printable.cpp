#include "printable.h"

#include <iconv.h>

namespace Zudunmaf::hostcheck
{

namespace
{

std::string escaped(char byte)
{
    constexpr char Digits[] = "0123456789ABCDEF";
    const auto number = static_cast<unsigned char>(byte);
    return {'\\', 'x', Digits[number / 16], Digits[number % 16]};
}

} // namespace

std::string printable(std::string bytes)
{
    // Not mbrtowc(), which decodes by the locale: the host may set one.
    const iconv_t decoder = iconv_open("UTF-8", "UTF-8");
    std::string decoded, buffer(bytes.size(), '\0');
    char *next = bytes.data();
    for (size_t left = bytes.size(); left > 0;) {
        char *end = buffer.data();
        size_t room = buffer.size();
        iconv(decoder, &next, &left, &end, &room);
        decoded.append(buffer.data(), end);
        // Stopped at a byte that is not UTF-8.
        if (left > 0) {
            decoded += escaped(*next++);
            --left;
        }
    }
    iconv_close(decoder);
    std::string result;
    for (const char byte : decoded) {
        const bool isControl = static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
        result += isControl ? escaped(byte) : std::string(1, byte);
    }
    return result;
}

} // namespace Zudunmaf::hostcheck
