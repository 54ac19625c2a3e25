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

/// A user's INI file, read again whenever it has changed, and only then.
///
/// Keep one object for a path as long as the process runs: QSettings tells of a broken file only the first
/// time that it reads it, so a second object would find the same file sound and empty.
class ConfigurationFile
{
public:
    explicit ConfigurationFile(const QString &path);

    /// Takes in what the file holds now. Empty on success, else what is wrong with the file.
    QString refresh();

    /// The value of `key` as of the last refresh(); invalid where the file does not name it.
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
