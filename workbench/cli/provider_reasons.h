#pragma once

#include <string>
#include <vector>

#include "Z7XFRPCS/session.h"

// Why no provider could be bound: what router kind and transport type call for, and what each library lacks in the
// folder of the providers. The last line says what to do. Libraries are loaded to look at them.
std::vector<std::string> whyNothingIsBound(ZhstSession session);
