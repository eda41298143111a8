#ifndef Z7X_TESTS_FRAMEWORK_THREAD_H
#define Z7X_TESTS_FRAMEWORK_THREAD_H

/* Has the test framework start the thread it keeps beside the main one, if it keeps one, and returns when that runs.
   Called before the first test: Wine crashes when a process ends while a thread of it has yet to begin, as happened
   after one in some hundred short tests. */
void startFrameworkThread();

#endif
