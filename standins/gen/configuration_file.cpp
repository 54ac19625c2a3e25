#include "gen/configuration_file.h"

#include <QFileInfo>

namespace Zudunmaf
{
namespace gen
{

ConfigurationFile::ConfigurationFile(const QString &path)
    : m_path(path)
{
}

QString ConfigurationFile::refresh()
{
    const QFileInfo file(m_path);
    // QSettings treats a missing file as an empty one.
    if (!file.isFile() || !file.isReadable()) {
        m_size = -1;
        return QString::fromLatin1("the configuration file \"%1\" cannot be read").arg(m_path);
    }
    if (!m_settings || file.size() != m_size || file.lastModified() != m_changed) {
        // A new object, because QSettings never clears an error status.
        m_settings = std::make_unique<QSettings>(m_path, QSettings::IniFormat);
        m_size = file.size();
        m_changed = file.lastModified();
    }
    if (m_settings->status() != QSettings::NoError)
        return QString::fromLatin1("the configuration file \"%1\" is not a valid INI file").arg(m_path);
    return QString();
}

QVariant ConfigurationFile::value(const QString &key) const
{
    return m_settings ? m_settings->value(key) : QVariant();
}

} // namespace gen
} // namespace Zudunmaf
