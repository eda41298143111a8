#ifndef Z7XFRPCS_PROVIDER_H
#define Z7XFRPCS_PROVIDER_H

#include <stdint.h>

#include "Z7XFRPCS/calling_convention.h"

/* The call into a transfer-function provider, as the library makes it and a provider receives it. Handles and numbers
   are 32 bits; addresses have the width of the machine; every entry is a ZHST_CALL and is exported under its plain
   name. */

enum { TF_BUFFER_SIZE = 4096 };

/* Functions: number, name, what it asks for. */
#define ZHST_TF_FUNCTIONS(X)                                                                               \
    X(1, SEND_REQUEST,                                                                                     \
      "The buffer holds a request of `length` bytes. An answer has no data, but a host message may "       \
      "go with an error.")                                                                                 \
    X(2, GET_FIELD, "The next field description of the request: 40 bytes.")                                \
    X(3, GET_DATA, "The next record, the count, or the next entry of a catalogue.")                        \
    X(4, END_REQUEST, "Ends the request.")                                                                 \
    X(5, RESET,                                                                                            \
      "Once behind the binding; in the emulator's own families also in front of the end of a client that " \
      "still holds a conversation.")                                                                       \
    X(6, PUT_DATA, "The buffer holds a record of `length` bytes for the host.")                            \
    X(7, END_DATA,                                                                                         \
      "Ends the data, since the transfer stops in the middle of them; the library takes the "              \
      "conversation for ended.")

enum TfFunction {
#define ZHST_TF_FUNCTION(number, name, use) TF_##name = number,
    ZHST_TF_FUNCTIONS(ZHST_TF_FUNCTION)
#undef ZHST_TF_FUNCTION
};

/* The return codes that the library acts on: code, name, what it does. All others are errors, told by their number. */
#define ZHST_TF_RETURN_CODES(X)                                                                        \
    X(0x0000, SUCCESS, "Goes on.")                                                                     \
    X(0x0400, TARGET_EXISTS,                                                                           \
      "Behind a REPLACE request, with a host message that begins with IWS2036 or IWS2023: the "        \
      "target exists; the user is asked, or the transfer goes on. Anywhere else an error.")            \
    X(0x1FFF, NO_MORE_DATA, "There are no more descriptions, records or entries.")                     \
    X(0x3000, HOST_MESSAGE, "An error; a host message is shown alone.")                                \
    X(0x3100, HOST_MESSAGE_INSTEAD, "The same.")                                                       \
    X(0x5057, COMPLETED, "Success, with nothing more to come: without data it ends the records.")      \
    X(0x7101, FAILED_SILENTLY, "Ends the transfer without a message: the provider has told the user.") \
    X(0x9999, NOT_STARTED, "The session is not to be had; the library's own code, with message 4432.")

enum TfReturnCode {
#define ZHST_TF_RETURN_CODE(code, name, use) TF_##name = code,
    ZHST_TF_RETURN_CODES(ZHST_TF_RETURN_CODE)
#undef ZHST_TF_RETURN_CODE
};

ZHST_BEGIN_C

/* Lets the user act while the provider waits: the progress dialog of the exchange processes its messages once, and
   exports of the library may be called meanwhile. */
typedef void(ZHST_CALL* TfYield)(void);

/* EHNTF_STF of E32TFW.DLL.
   - window: in, the session's window
   - yield: in, to be called while waiting, so that the user can cancel
   - others: as those of TfRequestEntry
   Result: the same. */
typedef uint32_t(ZHST_CALL* TfStfEntry)(uint32_t window, TfYield yield, uint32_t* conversation, uint32_t function,
                                        void* buffer, uint32_t bufferSize, uint32_t length, const char* designation,
                                        uint32_t reserved, void** data, uint32_t* dataLength, uint32_t* detail);

/* zehnRequestor of ZEHNTFW.DLL and ZTFWAPPC.DLL, as400Request of AS4XFER.DLL.
   - client: in, what the provider's constructor gave
   - conversation: in, out; a value of the provider's own, kept by the library from call to call; 0 = none, as at first
   - function: in, a TfFunction
   - buffer: in, out; the shared buffer, in which requests and records travel both ways. It is the library's, and stays
     where it is until the provider's client is ended
   - bufferSize: in, 4096
   - length: in, bytes of the request or record in the buffer, else 0
   - designation: in, "SYSTEM(NAME    )", or null
   - reserved: in, 0
   - data: out, the address of what the provider returns, in the shared buffer or in memory of the provider's own, valid
     until the next call; null at first
   - dataLength: out, bytes of that; 0 at first
   - detail: out, its low 16 bits are the detail code; 0 at first
   Result: its low 16 bits are the return code, a TfReturnCode or any other; the rest is not looked at. */
typedef uint32_t(ZHST_CALL* TfRequestEntry)(uint32_t client, uint32_t* conversation, uint32_t function, void* buffer,
                                            uint32_t bufferSize, uint32_t length, const char* designation,
                                            uint32_t reserved, void** data, uint32_t* dataLength, uint32_t* detail);

/* E32TF_Cleanup of E32TFW.DLL, which need not be there: the session ends while a conversation is open. */
typedef void(ZHST_CALL* TfStfCleanupEntry)(void);

/* newZEHNTFWCLIENT, newZTFWAPPCCLIENT, newAS4XFERCLIENT: makes the client that every call is then made with.
   - session: in, the session
   - window: in, the session's window
   Result: the client, any number; 0 = failure. The library says nothing then: the provider tells the user. */
typedef uint32_t(ZHST_CALL* TfNewClientEntry)(uint32_t session, uint32_t window);

/* deleteZEHNTFWCLIENT, deleteZTFWAPPCCLIENT, deleteZAS4XFERCLIENT: ends a client. It may use the shared buffer to its
   end.
   - client: in, what the constructor gave */
typedef void(ZHST_CALL* TfDeleteClientEntry)(uint32_t client);

/* getAS4XFERCLIENT: must be there, and is never called.
   - session: in, the session
   Result: the client of that session. */
typedef uint32_t(ZHST_CALL* TfGetClientEntry)(uint32_t session);

/* EHNAPPC_IsRouterLoaded of E32APPC.DLL.
   - session: in, the session
   Result: non-zero when the router runs. */
typedef uint32_t(ZHST_CALL* TfIsRouterLoadedEntry)(uint32_t session);

/* The provider libraries: family, file. */
#define ZHST_PROVIDER_LIBRARIES(X) \
    X(Ibm, "E32TFW.DLL")           \
    X(Emulator, "ZEHNTFW.DLL")     \
    X(Appc, "ZTFWAPPC.DLL")        \
    X(As400, "AS4XFER.DLL")

/* The library that tells whether the router of the family Ibm runs. */
#define ZHST_ROUTER_LIBRARIES(X) X(Router, "E32APPC.DLL")

/* What is looked up in each: family or router, use, exported name, type, whether it must be there (Needed, Optional).
 */
#define ZHST_PROVIDER_ENTRIES(X)                                                  \
    X(Router, IsLoaded, "EHNAPPC_IsRouterLoaded", TfIsRouterLoadedEntry, Needed)  \
    X(Ibm, Request, "EHNTF_STF", TfStfEntry, Needed)                              \
    X(Ibm, Cleanup, "E32TF_Cleanup", TfStfCleanupEntry, Optional)                 \
    X(Emulator, NewClient, "newZEHNTFWCLIENT", TfNewClientEntry, Needed)          \
    X(Emulator, Request, "zehnRequestor", TfRequestEntry, Needed)                 \
    X(Emulator, DeleteClient, "deleteZEHNTFWCLIENT", TfDeleteClientEntry, Needed) \
    X(Appc, NewClient, "newZTFWAPPCCLIENT", TfNewClientEntry, Needed)             \
    X(Appc, Request, "zehnRequestor", TfRequestEntry, Needed)                     \
    X(Appc, DeleteClient, "deleteZTFWAPPCCLIENT", TfDeleteClientEntry, Needed)    \
    X(As400, NewClient, "newAS4XFERCLIENT", TfNewClientEntry, Needed)             \
    X(As400, DeleteClient, "deleteZAS4XFERCLIENT", TfDeleteClientEntry, Needed)   \
    X(As400, GetClient, "getAS4XFERCLIENT", TfGetClientEntry, Needed)             \
    X(As400, Request, "as400Request", TfRequestEntry, Needed)

ZHST_END_C

#endif
