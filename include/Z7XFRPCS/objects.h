#ifndef Z7XFRPCS_OBJECTS_H
#define Z7XFRPCS_OBJECTS_H

#include "Z7XFRPCS/types.h"

/* The emulator's objects. The first word of each is the address of a table of operations; the slot numbers below are
   the contract. An operation takes the object as its first argument and is a ZHST_CALL. Slots without a name here are
   never called. */

/* A file of the PC. Owned by whoever created it, who ends it with slot 0. */
typedef struct ZhstFileObject {
    void* const* operations;
} ZhstFileObject;

enum ZhstFileSlot {
    ZhstFileDestroy = 0,        /* void (object, uint32_t 1) */
    ZhstFileOpenForReading = 1, /* uint32_t (object): 0 on failure, and then the object has told the user */
    ZhstFileOpenForWriting = 2, /* likewise; applies name, type flag, open flags and existing-file action */
    ZhstFileRead = 3,           /* int32_t (object, void* buffer, uint32_t maximum): bytes read; 0 or less: the end */
    ZhstFileWrite = 4,          /* uint32_t (object, const void* bytes, uint32_t length): 0 on failure */
    ZhstFileClose = 5,          /* void (object) */
    ZhstFileErrorState = 7,     /* uint32_t (object): not 0 after a failed operation; reports it to the user */
    ZhstFileSetName = 8,        /* void (object, const char* name) */
    ZhstFileSetTypeFlag = 10,   /* void (object, uint32_t flag): 1 = binary, 0 = text */
    ZhstFileSetOpenFlags = 11,  /* void (object, uint32_t flags) */
    ZhstFileSetExistingAction = 12, /* void (object, uint32_t action) */
    ZhstFileSetOption = 14,         /* void (object, uint32_t option) */
    ZhstFileSize = 15,              /* uint32_t (object): bytes */
    ZhstFileReadWhole = 16,         /* void* (object): the whole file in a block of that size, freed with FreeObject */
    ZhstFileOpenedName = 17,        /* void (object, char* buffer): 1025 characters */
    ZhstFileSetPosition = 23,       /* void (object, uint32_t position, uint32_t 0) */
    ZhstFilePosition = 24,          /* uint32_t (object): bytes */
    ZhstFilePrepareNew = 25,        /* void (object, uint32_t 0) */
};

/* Names and places of PC files. Owned by the session. */
typedef struct ZhstPathServices {
    void* const* operations;
} ZhstPathServices;

/* Buffers have 261 characters, and room for the whole of a longer name. */
enum ZhstPathSlot {
    ZhstPathFileExists = 1,           /* uint32_t (object, const char* name, uint32_t 1) */
    ZhstPathBaseName = 10,            /* void (object, const char* name, char* buffer): no directory, no extension */
    ZhstPathDirectoryPart = 11,       /* void (object, const char* name, char* buffer): with its trailing separator */
    ZhstPathSetCurrentDirectory = 13, /* void (object, const char* path) */
};

/* Owned by the session. */
typedef struct ZhstCodePageServices {
    void* const* operations;
} ZhstCodePageServices;

enum ZhstCodePageSlot {
    ZhstCodePageIsDoubleByte = 6, /* uint32_t (object, int32_t hostCodePage) */
};

/* Kinds of GetSessionObject. */
enum ZhstSessionObjectKind {
    ZhstPathServicesKind = 2,
    ZhstCodePageServicesKind = 7,
};

/* Stores the user's clause text into each record that is not null: (session, select list, selection condition, order
   by, group by, having, join condition). */
typedef void(ZHST_CALL* ZhstGetTransferClauses)(ZhstSession, ZhstTextRecord*, ZhstTextRecord*, ZhstTextRecord*,
                                                ZhstTextRecord*, ZhstTextRecord*, ZhstTextRecord*);
/* (text services, source, source length, destination, destination capacity, 2): the converted length. */
typedef uint32_t(ZHST_CALL* ZhstHostTextToPc)(ZhstTextServices, const void*, uint32_t, void*, uint32_t, uint32_t);
/* (text services, source, source length, destination, destination length, 1, 2). */
typedef uint32_t(ZHST_CALL* ZhstPcTextToHost)(ZhstTextServices, const void*, uint32_t, void*, uint32_t, uint32_t,
                                              uint32_t);

/* Entries of the session services table that the library calls. */
enum ZhstSessionServicesEntry {
    ZhstHostTextToPcEntry = 35,
    ZhstPcTextToHostEntry = 36,
    ZhstGetTransferClausesEntry = 91,
    ZhstSessionServicesEntries = 92,
};

/* A table of entry points owned by the emulator; an entry may be absent (null). */
typedef struct ZhstSessionServices {
    void* entries[ZhstSessionServicesEntries];
} ZhstSessionServices;

#ifdef __cplusplus
extern "C" {
#endif

void* ZHST_CALL zhstGetSessionObject(ZhstSession session, uint32_t kind);
const ZhstSessionServices* ZHST_CALL zhstGetSessionServices(ZhstSession session);
/* A new file object, or null. */
ZhstFileObject* ZHST_CALL zhstCreateFileObject(ZhstSession session);

#ifdef __cplusplus
}
#endif

#endif
