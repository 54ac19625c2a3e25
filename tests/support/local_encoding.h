#ifndef TESTS_SUPPORT_LOCAL_ENCODING_H
#define TESTS_SUPPORT_LOCAL_ENCODING_H

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#    include <QTextCodec>
#endif

/// The local 8-bit encodings that a test can choose, UTF-8 last: Qt 6 has no other.
inline QList<QByteArray> localEncodings()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return {"ISO-8859-1", "ISO-8859-5", "UTF-8"};
#else
    return {"UTF-8"};
#endif
}

inline void setLocalEncoding(const QByteArray &name)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
#else
    Q_ASSERT(name == "UTF-8");
#endif
}

#endif
