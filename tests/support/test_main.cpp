#include <gtest/gtest.h>

#include "support/dynamic_library.h"
#include "support/framework_thread.h"

// The tests find what they load beside themselves, wherever they are started.
int main(int argumentCount, char** arguments) {
    setDefaultEnvironment("Z7X_BIN", Z7X_DEFAULT_BIN);
    setDefaultEnvironment("Z7X_CODE_PAGES", Z7X_DEFAULT_BIN "/codepages.dat");
    setDefaultEnvironment("Z7X_SCRIPT", Z7X_DEFAULT_SCRIPT);
    testing::InitGoogleTest(&argumentCount, arguments);
    startFrameworkThread();
    const int result = RUN_ALL_TESTS();
    // A filter that selects nothing has tested nothing.
    return testing::UnitTest::GetInstance()->test_to_run_count() > 0 ? result : 1;
}
