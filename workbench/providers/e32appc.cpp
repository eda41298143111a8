// The communications router. The sample host is always there.
#include <cstdint>

#include "Z7XFRPCS/provider.h"

extern "C" {

ZHST_EXPORT std::uint32_t ZHST_CALL EHNAPPC_IsRouterLoaded(std::uint32_t) { return 1; }
}
