#include "settings/net/security_switches.h"

#include "platform/service_control.h"
#include "settings/page_context.h"

bool HasFirewall(const TPageContext& context) {
    return kSinceVista.Include(context.Release) ||
           (kOnlyXp.Include(context.Release) &&
            QueryServiceRunning(context.System, L"SharedAccess") == TServiceAnswer::Running);
}
