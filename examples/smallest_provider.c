/* The smallest provider: a host with one file of three records, which can be received and nothing else.

   Built as ZEHNTFW.DLL it is what the library loads where the session's RouterKind is 1 and its TransportType 8. The
   library asks for three entries by their plain names: one that makes a client, one that deletes it, and one through
   which everything else goes, by function code. */

#include <string.h>

#include "Z7XFRPCS/provider.h"

/* What a field of the file looks like: 40 bytes, of which the library reads the first 34. */
typedef struct FieldDescription {
    uint8_t type;      /* 2 = character, 3 = zoned decimal */
    uint8_t length[2]; /* character: bytes, low byte first; zoned: digits, then decimals */
    char name[30];     /* padded with blanks; no terminator */
    uint8_t digits;    /* of a number */
    uint8_t unread[6];
} FieldDescription;

static const FieldDescription fields[] = {
    {3, {4, 0}, "CUSTNO                        ", 4, {0}},
    {2, {8, 0}, "NAME                          ", 0, {0}},
    {3, {7, 2}, "BALANCE                       ", 7, {0}},
};

/* The records as they stand on the host, field behind field without a gap: text in EBCDIC, a digit as F0 to F9, and the
   sign of a zoned number in the upper half of its last byte, where D is a minus. */
static const uint8_t records[][19] = {
    {0xF1, 0xF0, 0xF0, 0xF1,                         /* 1001 */
     0xC1, 0xC4, 0xC1, 0xD4, 0xE2, 0x40, 0x40, 0x40, /* ADAMS */
     0xF0, 0xF0, 0xF1, 0xF2, 0xF3, 0xF4, 0xF5},      /* 123.45 */
    {0xF1, 0xF0, 0xF0, 0xF2,                         /* 1002 */
     0xC2, 0x99, 0x96, 0xA6, 0x95, 0x40, 0x40, 0x40, /* Brown */
     0xF0, 0xF0, 0xF0, 0xF0, 0xF0, 0xF0, 0xF0},      /* 0.00 */
    {0xF1, 0xF0, 0xF0, 0xF3,                         /* 1003 */
     0xC3, 0x93, 0x81, 0x99, 0x92, 0x85, 0x40, 0x40, /* Clarke */
     0xF0, 0xF0, 0xF0, 0xF9, 0xF9, 0xF5, 0xD0},      /* -99.50 */
};

enum { FIELDS = sizeof fields / sizeof fields[0], RECORDS = sizeof records / sizeof records[0] };

/* Where the request that is being answered stands. One is enough here: the library runs one transfer at a time, on one
   thread. A provider for several sessions keeps one of these for each client. */
static uint32_t nextField;
static uint32_t nextRecord;
static int countIsAsked;

/* Hands over what lies in the provider's own memory. It has to stay there until the next call. */
static uint32_t give(const void* bytes, uint32_t length, void** data, uint32_t* dataLength) {
    *data = (void*)bytes;
    *dataLength = length;
    return TF_SUCCESS;
}

/* Refuses a request. The text becomes the host's message, in a box of the emulator's. */
static uint32_t refuse(const char* text, void** data, uint32_t* dataLength) {
    give(text, (uint32_t)strlen(text), data, dataLength);
    return TF_HOST_MESSAGE;
}

static int beginsWith(const void* request, uint32_t length, const char* word) {
    return length >= strlen(word) && memcmp(request, word, strlen(word)) == 0;
}

/* A request is text of the PC, `length` bytes without a terminator. Before the query come the options, which ask how
   numbers and dates are to look: nothing that this file has needs them, so they are granted unread. */
static uint32_t takeRequest(const void* request, uint32_t length, void** data, uint32_t* dataLength) {
    if (beginsWith(request, length, "REPLACE")) return refuse("This file can only be read.", data, dataLength);
    if (beginsWith(request, length, "EXTRACT")) return refuse("There is no catalogue here.", data, dataLength);
    countIsAsked = beginsWith(request, length, "SELECT COUNT(*)");
    nextField = 0;
    nextRecord = 0;
    return TF_SUCCESS;
}

static uint32_t giveField(void** data, uint32_t* dataLength) {
    if (nextField == FIELDS) return TF_NO_MORE_DATA;
    return give(&fields[nextField++], sizeof fields[0], data, dataLength);
}

/* Behind SELECT COUNT(*) the only "record" is their number: four bytes, high byte first. */
static uint32_t giveRecord(void** data, uint32_t* dataLength) {
    static const uint8_t count[4] = {0, 0, 0, RECORDS};
    if (countIsAsked) {
        countIsAsked = 0;
        nextRecord = RECORDS;
        return give(count, sizeof count, data, dataLength);
    }
    if (nextRecord == RECORDS) return TF_NO_MORE_DATA;
    return give(&records[nextRecord++], sizeof records[0], data, dataLength);
}

/* The client is any number but 0, which would say that there is no host. It comes back with every call. */
ZHST_EXPORT uint32_t ZHST_CALL newZEHNTFWCLIENT(uint32_t session, uint32_t window) {
    (void)session, (void)window;
    return 1;
}

ZHST_EXPORT void ZHST_CALL deleteZEHNTFWCLIENT(uint32_t client) { (void)client; }

/* The low 16 bits of the result say how it went; what comes with it is told through `data` and `dataLength`. */
ZHST_EXPORT uint32_t ZHST_CALL zehnRequestor(uint32_t client, uint32_t* conversation, uint32_t function, void* buffer,
                                             uint32_t bufferSize, uint32_t length, const char* designation,
                                             uint32_t reserved, void** data, uint32_t* dataLength, uint32_t* detail) {
    (void)client, (void)conversation, (void)bufferSize, (void)designation, (void)reserved;
    *data = NULL;
    *dataLength = 0;
    *detail = 0;
    switch (function) {
        case TF_SEND_REQUEST:
            return takeRequest(buffer, length, data, dataLength);
        case TF_GET_FIELD:
            return giveField(data, dataLength);
        case TF_GET_DATA:
            return giveRecord(data, dataLength);
        /* The end of a request, and letting go of the connection: nothing is kept that would have to be given back. */
        default:
            return TF_SUCCESS;
    }
}
