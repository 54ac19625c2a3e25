#include "report.h"

#include <iconv.h>
#include <unistd.h>

namespace Zudunmaf::hostcheck
{

namespace
{

constexpr const char *groupNames[Report::GroupCount] = {"process", "services", "dictionary", "base",
                                                        "dialogs"};

std::string escaped(char byte)
{
    constexpr char Digits[] = "0123456789ABCDEF";
    const auto number = static_cast<unsigned char>(byte);
    return {'\\', 'x', Digits[number / 16], Digits[number % 16]};
}

/// Printable texts have two characters left to escape.
std::string jsonText(const std::string &printableText)
{
    std::string result;
    for (const char character : printableText) {
        if (character == '"' || character == '\\')
            result += '\\';
        result += character;
    }
    return '"' + result + '"';
}

} // namespace

std::string printable(std::string bytes)
{
    // Not mbrtowc(), which decodes by the locale: the host may set one.
    iconv_t decoder = iconv_open("UTF-8", "UTF-8");
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

Report::Report(bool json)
    : m_json(json)
    , m_output(fdopen(dup(STDOUT_FILENO), "w"))
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

void Report::add(Group group, const std::string &promise, const Outcome &outcome)
{
    constexpr const char *words[VerdictCount] = {"kept", "broken", "advice", "not checkable"};
    const char *word = words[int(outcome.verdict)], *name = groupNames[int(group)];
    const std::string detail = printable(outcome.detail);
    ++m_counts[int(group)][int(outcome.verdict)];
    if (m_json)
        std::fprintf(m_output,
                     "%s\n  {\"group\": \"%s\", \"promise\": %s, \"outcome\": \"%s\", \"detail\": %s}",
                     m_isFirst ? "{\"checks\": [" : ",", name, jsonText(promise).c_str(), word,
                     jsonText(detail).c_str());
    else
        std::fprintf(m_output, "%-13s %s: %s%s%s\n", word, name, promise.c_str(), detail.empty() ? "" : ": ",
                     detail.c_str());
    std::fflush(m_output);
    m_isFirst = false;
}

int Report::finish(bool isStrict)
{
    if (m_json)
        std::fputs("\n]}\n", m_output);
    std::fflush(m_output);
    bool isBroken = false, isChecked = true;
    for (int group = 0; group < GroupCount; ++group) {
        const auto count = [&](Verdict verdict) { return m_counts[group][int(verdict)]; };
        isBroken |= count(Verdict::Broken) > 0 || (isStrict && count(Verdict::Advice) > 0);
        if (count(Verdict::Kept) + count(Verdict::Broken) + count(Verdict::Advice) == 0) {
            isChecked = false;
            std::fprintf(stderr, "zudunmaf-host-check: no promise of the group \"%s\" is checkable\n",
                         groupNames[group]);
        }
    }
    return isBroken ? 1 : isChecked ? 0 : 3;
}

} // namespace Zudunmaf::hostcheck
