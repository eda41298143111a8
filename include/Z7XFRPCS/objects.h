#ifndef Z7XFRPCS_OBJECTS_H
#define Z7XFRPCS_OBJECTS_H

#include "Z7XFRPCS/types.h"

/* The emulator's objects, and the session services table.

   An object is a structure whose first word is the address of a table of plain functions; the place of a function in
   its table, from 0, is its slot, and the slots are the contract. A function takes the object as its first argument and
   is a ZHST_CALL. An object of a C++ compiler's own making is no such thing: its functions take the object in a
   register, and its table begins where that compiler likes. Behind the first word an object may have whatever the
   emulator keeps in it.

   Slots named "unused" are never called and may be null. All others are called without asking whether they are there.
 */

ZHST_BEGIN_C

typedef struct ZhstFileObject ZhstFileObject;
typedef struct ZhstPathServices ZhstPathServices;
typedef struct ZhstCodePageServices ZhstCodePageServices;

/* Operations of a file object. */
typedef struct ZhstFileOperations {
    /* Closes the file if it is open, and ends the object.
       - file: in, the object
       - one: in, 1
       When: last of all. */
    void(ZHST_CALL* destroy)(ZhstFileObject* file, uint32_t one);

    /* Opens the file of the name that was set, at its start.
       - file: in, the object
       Result: 0 on failure, and then the object has told the user.
       When: for the PC file of a transfer to the host.
       Failure: the transfer ends before anything is sent. */
    uint32_t(ZHST_CALL* openForReading)(ZhstFileObject* file);

    /* Opens the file for writing, by the name, type flag, open flags and existing-file action that were set; asks the
       user what to do with a file that exists, where the action says so.
       - file: in, the object
       Result: 0 on failure, or when the user does not want it, and then the object has told the user.
       When: for the PC file of a transfer from the host once the fields are known, and for a description written beside
       it.
       Failure: the transfer ends; without a description it goes on. */
    uint32_t(ZHST_CALL* openForWriting)(ZhstFileObject* file);

    /* Reads on from where the file stands.
       - file: in, the object
       - buffer: out, the bytes
       - maximum: in, bytes that `buffer` has room for. Fewer than these mean that the file ends here
       Result: the bytes read; 0 or less at the end of the file.
       When: again and again in a transfer to the host. */
    int32_t(ZHST_CALL* read)(ZhstFileObject* file, void* buffer, uint32_t maximum);

    /* Writes at the end of what was written.
       - file: in, the object
       - bytes: in, what to write; line ends are in it
       - length: in, how many bytes; 0 is possible
       Result: 0 on failure, and then the object has told the user.
       When: for every record, for the pieces of a DIF header and the lines of a description.
       Failure: the transfer ends; a DIF header or description is not written on. */
    uint32_t(ZHST_CALL* write)(ZhstFileObject* file, const void* bytes, uint32_t length);

    /* Closes the file. The object may be opened again or destroyed behind it.
       - file: in, the object
       When: at the end of the transfer; also when the file was never opened, or is closed already. */
    void(ZHST_CALL* close)(ZhstFileObject* file);

    void* unused6;

    /* Whether an operation has failed; the object tells the user of a failure that it has not told yet.
       - file: in, the object
       Result: not 0 after a failed operation.
       When: behind a DIF header that could not be written; behind size and readWhole of a description that is read. */
    uint32_t(ZHST_CALL* errorState)(ZhstFileObject* file);

    /* Takes the name of the file.
       - file: in, the object
       - name: in, the name as the user gave it; the object copies it
       When: first of all. */
    void(ZHST_CALL* setName)(ZhstFileObject* file, const char* name);

    void* unused9;

    /* Takes the kind of the file.
       - file: in, the object
       - flag: in, 1 = binary, 0 = text. Text brings its line ends along: nothing is to be changed in it
       When: before the file is opened. */
    void(ZHST_CALL* setTypeFlag)(ZhstFileObject* file, uint32_t flag);

    /* Takes flags that the emulator defines.
       - file: in, the object
       - flags: in, 11 for the PC file of a transfer, 38 (0x26) for a description
       When: before the file is opened. */
    void(ZHST_CALL* setOpenFlags)(ZhstFileObject* file, uint32_t flags);

    /* Takes what is to be done with a file that exists when it is opened for writing.
       - file: in, the object
       - action: in, the setting ExistingFileAction: 0 = ask the user, 1 = replace it, 2 = append to it, others are the
         emulator's. For a description 1 where the setting is 2; 2 for the trace file
       When: before the file is opened. */
    void(ZHST_CALL* setExistingAction)(ZhstFileObject* file, uint32_t action);

    void* unused13;

    /* Takes an option that the emulator defines.
       - file: in, the object
       - option: in, 1
       When: for the trace file, which is never opened. */
    void(ZHST_CALL* setOption)(ZhstFileObject* file, uint32_t option);

    /* The size of the file, open or not.
       - file: in, the object
       Result: bytes.
       When: for the PC file of a transfer to the host, open, and of a demonstration, not open; for a description that
       is read, not open. */
    uint32_t(ZHST_CALL* size)(ZhstFileObject* file);

    /* Reads a file that is not open, whole.
       - file: in, the object
       Result: a block of as many bytes as size gave, made by AllocateObject; the library frees it with FreeObject. Null
       on failure.
       When: for a description that is read.
       Failure: message 4001 when errorState reports none. */
    void*(ZHST_CALL* readWhole)(ZhstFileObject* file);

    /* The name under which the file was opened.
       - file: in, the object
       - buffer: out, room for 1025 characters, the terminator among them
       When: behind openForWriting. */
    void(ZHST_CALL* openedName)(ZhstFileObject* file, char* buffer);

    void* unused18[5];

    /* Moves the place of the next read.
       - file: in, the object
       - position: in, bytes from the start
       - origin: in, 0: the start
       When: in a transfer to the host, behind a read that ended inside a record. */
    void(ZHST_CALL* setPosition)(ZhstFileObject* file, uint32_t position, uint32_t origin);

    /* The place of the next read.
       - file: in, the object
       Result: bytes from the start.
       When: in a transfer to the host, for the progress. */
    uint32_t(ZHST_CALL* position)(ZhstFileObject* file);

    /* Says that the file to be written cannot be appended to: a question about one that exists is not to offer that.
       - file: in, the object
       - zero: in, 0
       When: before a DIF file or a description is opened for writing, where the existing-file action is 0. */
    void(ZHST_CALL* prepareNew)(ZhstFileObject* file, uint32_t zero);
} ZhstFileOperations;
ZHST_CHECK_SLOT(ZhstFileOperations, close, 5);
ZHST_CHECK_SLOT(ZhstFileOperations, errorState, 7);
ZHST_CHECK_SLOT(ZhstFileOperations, setName, 8);
ZHST_CHECK_SLOT(ZhstFileOperations, setTypeFlag, 10);
ZHST_CHECK_SLOT(ZhstFileOperations, setExistingAction, 12);
ZHST_CHECK_SLOT(ZhstFileOperations, setOption, 14);
ZHST_CHECK_SLOT(ZhstFileOperations, openedName, 17);
ZHST_CHECK_SLOT(ZhstFileOperations, setPosition, 23);
ZHST_CHECK_SLOT(ZhstFileOperations, prepareNew, 25);

/* A file of the PC. Owned by whoever created it, who ends it with `destroy`. */
struct ZhstFileObject {
    const ZhstFileOperations* operations;
};
ZHST_CHECK_SIZE(ZhstFileObject, 4);

/* Operations of the path services. */
typedef struct ZhstPathOperations {
    void* unused0;

    /* Whether the emulator can find a provider library, or the router: LoadModule is to find the same.
       - paths: in, the object
       - name: in, the bare name of the library
       - one: in, 1
       Result: non-zero when it is there.
       When: before a library is loaded.
       Failure: message 4400, and the binding fails. */
    uint32_t(ZHST_CALL* fileExists)(ZhstPathServices* paths, const char* name, uint32_t one);

    void* unused2[8];

    /* The name of a file without directory and extension.
       - paths: in, the object
       - name: in, the PC file's name
       - buffer: out, 261 characters are enough for what is used of it; 1025 are there
       When: where a PC file description is named "*.EXT". */
    void(ZHST_CALL* baseName)(ZhstPathServices* paths, const char* name, char* buffer);

    /* The directory of a file, with its trailing separator; empty when the name has none.
       - paths: in, the object
       - name: in, the PC file's name
       - buffer: out, as above
       When: where the name of a PC file description has no directory of its own. */
    void(ZHST_CALL* directoryPart)(ZhstPathServices* paths, const char* name, char* buffer);

    void* unused12;

    /* Makes a directory the current one of the session.
       - paths: in, the object
       - path: in, the setting WorkingDirectory
       When: behind a settings file, when the setting is not empty. */
    void(ZHST_CALL* setCurrentDirectory)(ZhstPathServices* paths, const char* path);
} ZhstPathOperations;
ZHST_CHECK_SLOT(ZhstPathOperations, fileExists, 1);
ZHST_CHECK_SLOT(ZhstPathOperations, baseName, 10);
ZHST_CHECK_SLOT(ZhstPathOperations, directoryPart, 11);
ZHST_CHECK_SLOT(ZhstPathOperations, setCurrentDirectory, 13);

/* Names and places of PC files. Owned by the session. */
struct ZhstPathServices {
    const ZhstPathOperations* operations;
};
ZHST_CHECK_SIZE(ZhstPathServices, 4);

/* Operations of the code-page services. */
typedef struct ZhstCodePageOperations {
    void* unused0[6];

    /* Whether a host code page has characters of two bytes.
       - codePages: in, the object
       - hostCodePage: in, the setting HostCodePage
       Result: non-zero when it has; then the code tables of LoadCodeTable convert.
       When: while a client is made, and when the setting changes. */
    uint32_t(ZHST_CALL* isDoubleByte)(ZhstCodePageServices* codePages, int32_t hostCodePage);
} ZhstCodePageOperations;
ZHST_CHECK_SLOT(ZhstCodePageOperations, isDoubleByte, 6);

/* Knowledge of code pages. Owned by the session. */
struct ZhstCodePageServices {
    const ZhstCodePageOperations* operations;
};
ZHST_CHECK_SIZE(ZhstCodePageServices, 4);

/* Entry points of the session services. Each may be absent (null): then it is not called. */
typedef struct ZhstSessionServices {
    void* unused0[35];

    /* Converts text from host code page 43 to the PC's code page; its length may change.
       - services: in, from GetTextServices
       - source: in, the host's text
       - length: in, bytes of it
       - destination: out, the PC's text
       - capacity: in, bytes that `destination` has room for
       - two: in, 2
       Result: bytes of the PC's text.
       When: for every character field and every text of a catalogue, while HostCodePage is 43.
       Failure: absent, the text stays as the host has it. */
    uint32_t(ZHST_CALL* hostTextToPc)(ZhstTextServices services, const void* source, uint32_t length, void* destination,
                                      uint32_t capacity, uint32_t two);

    /* Converts text from the PC's code page to host code page 43, filling the whole destination.
       - services: in, from GetTextServices
       - source: in, the PC's text
       - length: in, bytes of it; may be more or less than the field's
       - destination: out, the field of the host record
       - destinationLength: in, bytes of the field
       - one: in, 1
       - two: in, 2
       Result: not looked at.
       When: for every character field that is sent, while HostCodePage is 43.
       Failure: absent, the field has zero bytes. */
    uint32_t(ZHST_CALL* pcTextToHost)(ZhstTextServices services, const void* source, uint32_t length, void* destination,
                                      uint32_t destinationLength, uint32_t one, uint32_t two);

    void* unused37[54];

    /* Stores the user's clauses of a transfer from the host, each into the record given for it; a null record is left
       out.
       - session: in, the session
       - selectList: in, out; the fields, empty for all
       - selection: in, out; the condition that the user gave
       - orderBy: in, out; the fields to sort by
       - groupBy: in, out; the fields to group by
       - having: in, out; the condition on groups
       - join: in, out; the condition that relates several files
       When: for the select list at the start of every transfer, for the others twice while a query is composed.
       Failure: absent, the request has no clauses: the query keeps the text of an earlier one, so a host of queries
       needs this entry. */
    void(ZHST_CALL* getTransferClauses)(ZhstSession session, ZhstTextRecord* selectList, ZhstTextRecord* selection,
                                        ZhstTextRecord* orderBy, ZhstTextRecord* groupBy, ZhstTextRecord* having,
                                        ZhstTextRecord* join);
} ZhstSessionServices;
ZHST_CHECK_SLOT(ZhstSessionServices, hostTextToPc, 35);
ZHST_CHECK_SLOT(ZhstSessionServices, pcTextToHost, 36);
ZHST_CHECK_SLOT(ZhstSessionServices, getTransferClauses, 91);
ZHST_CHECK_SIZE(ZhstSessionServices, 368);

/* Kinds of GetSessionObject. */
enum ZhstSessionObjectKind {
    ZhstPathServicesKind = 2,     /* a ZhstPathServices */
    ZhstCodePageServicesKind = 7, /* a ZhstCodePageServices */
};

/* An object of the session.
   - session: in, the session
   - kind: in, a ZhstSessionObjectKind
   Result: the object, the session's; null when there is none.
   When: the path services while a client is made and in every transfer, the code-page services whenever the host code
   page is set.
   Failure: without path services no provider is found (message 4400) and a PC file description is looked for in the
   current directory; without code-page services every host code page is taken for one of single bytes. */
void* ZHST_CALL zhstGetSessionObject(ZhstSession session, uint32_t kind);

/* The session services table.
   - session: in, the session
   Result: the table, the session's; null is as good as a table of nulls.
   When: while a client is made, and at the start of every transfer. */
const ZhstSessionServices* ZHST_CALL zhstGetSessionServices(ZhstSession session);

/* A new file object.
   - session: in, the session
   Result: the object, the library's until it destroys it; null when there is no memory.
   When: for the PC file of a transfer, for a PC file description, for the trace file.
   Failure: message 4001, and the transfer ends; a description that was to be written is left out; the trace file is
   left out without a word. */
ZhstFileObject* ZHST_CALL zhstCreateFileObject(ZhstSession session);

ZHST_END_C

#endif
