#pragma once

#include "compare/host_layout.h"

namespace compare {

namespace setting = zhst::setting;
using Session = decltype(emulator::newSession());

// Every setting that a transfer looks at: mostly a usual value, now and then one that nobody should have.
void setRandomSettings(Random& random, Session session, const Pc& pc);
emulator::Clauses randomClauses(Random& random, const Pc& pc);
// Mostly none. The failing allocation is one of the first few hundred.
emulator::Faults randomFaults(Random& random, bool failingAllocations);

}  // namespace compare
