// Who is logged in on this machine.
#pragma once

#include "host/system_info.h"

namespace quendal {

class DesktopSystemInfo final : public SystemInfo {
  public:
    // The login name, or "Benutzer" where the system tells none.
    User CurrentUser() const override;
};

} // namespace quendal
