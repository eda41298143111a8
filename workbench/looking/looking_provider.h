#pragma once

#include "Z7XFRPCS/provider.h"

// What the looking provider exports besides the entries of its family, by this name: who answers the calls from now on.
// Without one it makes no client.
inline constexpr char SetLookingHostName[] = "setLookingHost";
using SetLookingHostEntry = void(ZHST_CALL*)(TfRequestEntry host);
