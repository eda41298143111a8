#ifndef Z7XFRPCS_MONITOR_H
#define Z7XFRPCS_MONITOR_H

#include <stdint.h>

/* What the library publishes in the named store "ZHST", for a monitor of the emulator's to follow. It is written only,
   and nothing of a transfer depends on it. The store has the node XFR4, that has the lists X4RP (transfers from the
   host, and results) and X4SP (transfers to the host, and requests), and each of these has nine items. A code of four
   characters is a number with the first in the most significant byte. Every write replaces the item's value.

   Items, in the order in which they are opened: code in X4RP, code in X4SP, name, value. Items without a value are
   opened and never written. */
#define ZHST_MONITOR_ITEMS(X)                                                                                          \
    X("XDTI", "XUTI", Field, "the 40 bytes of a field description, as each is read")                                   \
    X("XDCI", "XUCI", Statement, "the text of a request and a zero byte, before it is sent")                           \
    X("XDRI", "XURI", Unused2, "")                                                                                     \
    X("XDDI", "XUDI", Description,                                                                                     \
      "from the host a piece of the PC file description as each is written: the head, then line by line; to the host " \
      "the whole of the description that is read")                                                                     \
    X("XDSI", "XUSI", Unused4, "")                                                                                     \
    X("XDFI", "XUFI", Record,                                                                                          \
      "from the host a record as it is written to the PC file, the end of a DIF file among them; to the host a "       \
      "record "                                                                                                        \
      "of a text-like PC file as it is split off, without its line end")                                               \
    X("XDAI", "XUAI", Unused6, "")                                                                                     \
    X("XDEI", "XUEI", Unused7, "")                                                                                     \
    X("XDGI", "XUGI", Exchange, "the result of an exchange in X4RP, its request in X4SP: the records below")

/* The request of an exchange, XUGI: offset, bytes, name, what stands there. Numbers have the low byte first. `n` are
   the bytes of the shared buffer that go with it; where bytes are given as 0 the length is the one said. */
#define ZHST_MONITOR_REQUEST(X)                                                                              \
    X(0, 1, Function, "function code")                                                                       \
    X(1, 1, Reserved, "0")                                                                                   \
    X(2, 4, Length, "n + 1")                                                                                 \
    X(6, 41, Designation, "designation of the host system, cut to 40 characters, and zeros; zeros for none") \
    X(47, 0, Data, "the n bytes, and two zeros")

/* The result of an exchange, XDGI. `m` are the bytes that were returned; it is 0 behind function 5, and behind function
   1 with return code 0. */
#define ZHST_MONITOR_RESULT(X)         \
    X(0, 1, Function, "function code") \
    X(1, 4, ReturnCode, "return code") \
    X(5, 4, DetailCode, "detail code") \
    X(9, 4, Length, "m")               \
    X(13, 0, Data, "the m bytes, and two zeros")

enum ZhstMonitorRequest {
#define ZHST_MONITOR_PLACE(offset, bytes, name, meaning) ZhstMonitorRequest##name = offset,
    ZHST_MONITOR_REQUEST(ZHST_MONITOR_PLACE)
#undef ZHST_MONITOR_PLACE
};

enum ZhstMonitorResult {
#define ZHST_MONITOR_PLACE(offset, bytes, name, meaning) ZhstMonitorResult##name = offset,
    ZHST_MONITOR_RESULT(ZHST_MONITOR_PLACE)
#undef ZHST_MONITOR_PLACE
};

#endif
