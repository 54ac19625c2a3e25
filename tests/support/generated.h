#ifndef TESTS_SUPPORT_GENERATED_H
#define TESTS_SUPPORT_GENERATED_H

#include <QString>
#include <QStringList>

#include <cstring>
#include <random>

/// Random data within what the records allow. It is the same in each run.
class Generated
{
public:
    int below(int limit) { return int(m_engine() % quint64(limit)); }

    /// A random sequence of what has a meaning in a line, and of other characters.
    QString text(int mostPieces)
    {
        static const QStringList pieces{" = ", " <= ", "\n", "%1", "%2", "%3", "%L1", "%", "a", "b = c",
                                        "ü",   "中",   "😀",  "5",  " ",  "\"", "\\",  "9", "�", "1 <= a"};
        QString made;
        for (int count = below(mostPieces + 1); count > 0; --count)
            made += pieces.at(below(int(pieces.size())));
        return made;
    }

    /// A number of random bits, a limit of the type, or a number as a user enters it.
    double number()
    {
        const quint64 bits = m_engine();
        double made = 0;
        std::memcpy(&made, &bits, sizeof made);
        static const double chosen[] = {0.0,    -0.0,   5e-324, -5e-324, 1e300, -1.7976931348623157e308,
                                        0.0625, 1.0005, 1e15,   0.1,     1e22,  double(0.1f)};
        switch (below(4)) {
        case 0:
            return chosen[below(12)];
        case 1:
            return below(200000) / 1000.0 - 100;
        default:
            return made != made ? 0.0005 : made;
        }
    }

    int integer() { return below(2) ? below(21) - 10 : int(m_engine()); }

private:
    std::mt19937_64 m_engine{7};
};

#endif
