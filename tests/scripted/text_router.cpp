#include <cstdint>

#include "Z7XFRPCS/calling_convention.h"

// The router beside the text-script provider: always running.
extern "C" SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNAPPC_IsRouterLoaded(std::uint32_t) { return 1; }
