#ifndef Z7XFRPCS_PROVIDER_H
#define Z7XFRPCS_PROVIDER_H

#include <stdint.h>

#include "Z7XFRPCS/calling_convention.h"

/* The call into a transfer-function provider, as the library makes it and a provider receives it. Handles and numbers
   are 32 bits; addresses have the width of the machine; every entry is a ZHST_CALL and is exported under its plain
   name.

     window          the session's window (EHNTF_STF only)
     yield           to be called while waiting, so that the user can cancel (EHNTF_STF only)
     client          what the provider's constructor gave (the other entries)
     conversation    the provider's own handle, kept by the library between calls; 0 = none; read and updated
     function        one of the codes below
     buffer          the shared buffer: requests and records travel in it, both ways
     bufferSize      4096
     length          bytes of request or record in the buffer, else 0
     designation     "SYSTEM(name    )" or null
     reserved        0
     data            out: address of what the provider returns, valid until the next call: in the shared buffer or in
                     memory of the provider's own
     dataLength      out: length of that
     detail          out: the low 16 bits are the detail code

   The low 16 bits of the result are the return code. */

enum { TF_BUFFER_SIZE = 4096 };

enum TfFunction {
    TF_SEND_REQUEST = 1,
    TF_GET_FIELD = 2,
    TF_GET_DATA = 3,
    TF_END_REQUEST = 4,
    TF_RESET = 5,
    TF_PUT_DATA = 6,
    TF_END_DATA = 7,
};

/* The return codes that the library acts on; all others are errors, told by their number. */
enum TfReturnCode {
    TF_SUCCESS = 0,
    TF_TARGET_EXISTS = 0x0400, /* with a host message, after a send request */
    TF_NO_MORE_DATA = 0x1FFF,
    TF_HOST_MESSAGE = 0x3000,
    TF_HOST_MESSAGE_INSTEAD = 0x3100,
    TF_COMPLETED = 0x5057,
    TF_FAILED_SILENTLY = 0x7101,
    TF_NOT_STARTED = 0x9999,
};

typedef void(ZHST_CALL* TfYield)(void);

typedef uint32_t(ZHST_CALL* TfStfEntry)(uint32_t window, TfYield yield, uint32_t* conversation, uint32_t function,
                                        void* buffer, uint32_t bufferSize, uint32_t length, const char* designation,
                                        uint32_t reserved, void** data, uint32_t* dataLength, uint32_t* detail);
typedef uint32_t(ZHST_CALL* TfRequestEntry)(uint32_t client, uint32_t* conversation, uint32_t function, void* buffer,
                                            uint32_t bufferSize, uint32_t length, const char* designation,
                                            uint32_t reserved, void** data, uint32_t* dataLength, uint32_t* detail);
typedef void(ZHST_CALL* TfStfCleanupEntry)(void);
/* (session, window): the client handle, 0 = failure. */
typedef uint32_t(ZHST_CALL* TfNewClientEntry)(uint32_t session, uint32_t window);
typedef void(ZHST_CALL* TfDeleteClientEntry)(uint32_t client);
typedef uint32_t(ZHST_CALL* TfGetClientEntry)(uint32_t session);
/* Non-zero when the router runs. */
typedef uint32_t(ZHST_CALL* TfIsRouterLoadedEntry)(uint32_t session);

#endif
