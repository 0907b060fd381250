#include "desktop/services/desktop_system_info.h"

#include "desktop/files/text_bytes.h"

#include <QString>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace quendal {

namespace {

std::string loginName() {
#ifdef Q_OS_UNIX
    // The account, not the environment: a learner can set LOGNAME to anything.
    if (const passwd* account = getpwuid(getuid()); account != nullptr) {
        return repairedUtf8(account->pw_name);
    }
#endif
    for (const char* variable : {"USER", "USERNAME", "LOGNAME"}) {
        if (const QString name = qEnvironmentVariable(variable); !name.isEmpty()) {
            return name.toStdString();
        }
    }
    return {};
}

} // namespace

SystemInfo::User DesktopSystemInfo::CurrentUser() const {
    std::string name = loginName();
    return {.Name = name.empty() ? "Benutzer" : std::move(name)};
}

} // namespace quendal
