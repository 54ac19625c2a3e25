#include "gdm/host/gen_services.h"

#include "gdm/host/config_keys.h"
#include "gen/configuration_file.h"
#include "gen/gen_control.h"

#include <cstring>
#include <map>

namespace
{

using Zudunmaf::gen::ConfigurationFile;

enum Status { Success = 0, Failure = 1 };
enum Origin : unsigned char { FromDefaults = 0, FromUserFile = 1 };

struct DefaultValue {
    const char *key;
    bool value;
};

constexpr DefaultValue defaultValues[] = {
    {Zudunmaf::keys::DisplayByPrompt, false},
    {Zudunmaf::keys::ShowObsolete, false},
};

const DefaultValue *defaultValueOf(const char *key)
{
    for (const DefaultValue &entry : defaultValues) {
        if (key && std::strcmp(entry.key, key) == 0)
            return &entry;
    }
    return nullptr;
}

/// The file of the last setConfigurationFile(); null if none.
ConfigurationFile *&userFile()
{
    static ConfigurationFile *file = nullptr;
    return file;
}

bool readBoolean(const QString &text, bool *value)
{
    static const char *const words[][2] = {{"false", "true"}, {"no", "yes"}, {"off", "on"}, {"0", "1"}};
    for (const auto &pair : words) {
        for (int meaning : {0, 1}) {
            if (text.compare(QLatin1String(pair[meaning]), Qt::CaseInsensitive) == 0) {
                *value = meaning == 1;
                return true;
            }
        }
    }
    return false;
}

Status fail(const QString &what)
{
    Zudunmaf::gen::noteFailure(what.toUtf8().constData());
    return Failure;
}

} // namespace

void Zudunmaf::gen::setConfigurationFile(const QString &path)
{
    static std::map<QString, ConfigurationFile> files;
    userFile() = path.isEmpty() ? nullptr : &files.try_emplace(path, path).first->second;
}

int gen__cfg_get(const char *key, unsigned char *value, unsigned char *origin)
{
    const DefaultValue *known = defaultValueOf(key);
    if (!known)
        return fail(QString::fromLatin1("there is no configuration key \"%1\"").arg(QString::fromUtf8(key)));

    bool flag = known->value;
    Origin from = FromDefaults;
    if (ConfigurationFile *file = userFile()) {
        const QString problem = file->refresh();
        if (!problem.isEmpty())
            return fail(problem);
        const QVariant given = file->value(QString::fromLatin1(key));
        if (given.isValid()) {
            if (!readBoolean(given.toString().trimmed(), &flag))
                return fail(QString::fromLatin1("the configuration value of \"%1\" is neither true nor false")
                                .arg(QString::fromLatin1(key)));
            from = FromUserFile;
        }
    }
    *value = flag;
    *origin = from;
    return Success;
}
