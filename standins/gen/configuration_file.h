#ifndef GEN_CONFIGURATION_FILE_H
#define GEN_CONFIGURATION_FILE_H

#include <memory>

#include <QDateTime>
#include <QSettings>
#include <QString>
#include <QVariant>

namespace Zudunmaf
{
namespace gen
{

/// A user's INI file, reloaded only if it has changed. Keep one object per path until the process ends: QSettings reports
/// an invalid file only at the first read, so a second object would see a valid empty file.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(const QString &path);

    /// Reloads the file if it has changed. Returns an error message, empty on success.
    QString refresh();

    /// Returns the value of `key` at the last refresh(); invalid if the file does not contain it.
    QVariant value(const QString &key) const;

private:
    QString m_path;
    QDateTime m_changed;
    qint64 m_size = -1;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace gen
} // namespace Zudunmaf

#endif
