#include "support/framework_thread.h"

// GoogleTest has only the main thread here.
void startFrameworkThread() {}
