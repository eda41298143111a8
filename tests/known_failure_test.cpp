#include "support/transfer_fixture.h"

// These fail, and must: a harness that lets them pass would let anything pass. Only CTest's known_failures_are_told and
// known_failures_fail run them.
class KnownFailure : public TwoRecords {};

TEST_F(KnownFailure, DISABLED_AnotherFileThanReceived) {
    receive();
    EXPECT_EQ(pcFileBytes(), "ALPHA\r\nDELTA\r\n");
}

TEST_F(KnownFailure, DISABLED_TheStepsOfATransferBackwards) {
    receive();
    expectInOrder({"provider TF_GET_DATA", "provider TF_SEND_REQUEST"});
}

TEST_F(KnownFailure, DISABLED_TransferLeftActive) { set(setting::TransferActive, 1); }
