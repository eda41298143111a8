#pragma once

#include "scripted/dispatch.h"

// The fast path of z7xscript: one transfer answered from arrays.
namespace scripted::fast {

void stop();
bool running();
std::uint32_t answer(const Exchange& exchange);

}  // namespace scripted::fast
