#ifndef Z7XFRPCS_CONVERSION_H
#define Z7XFRPCS_CONVERSION_H

#include "Z7XFRPCS/types.h"

/* Conversion services of the emulator. */

/* Directions of ConvertHostText. */
enum ZhstConversion {
    ZhstPcToHost = 0,
    ZhstHostToPc = 1,
};

ZHST_BEGIN_C

/* The handle that ConvertHostText is called with.
   - session: in, the session
   Result: the handle; it is not looked at.
   When: once, while a client is made. */
ZhstConverter ZHST_CALL zhstGetEmulatorConverter(ZhstSession session);

/* The handle that the entries 35 and 36 of the session services are called with.
   - session: in, the session
   Result: the handle; it is not looked at.
   When: once, while a client is made. */
ZhstTextServices ZHST_CALL zhstGetTextServices(ZhstSession session);

/* Converts text in place between the session's host code page (setting 105) and the PC's ANSI code page, a byte for a
   byte.
   - converter: in, from GetEmulatorConverter
   - direction: in, a ZhstConversion
   - length: in, bytes of `buffer`
   - buffer: in, out; the text, without a terminator
   Result: 0 for success.
   When: for every character field and every text of a catalogue, unless the host code page is double-byte (code tables)
   or 43 (entries 35 and 36).
   Failure: the record is not written or sent and the transfer ends without a word of the library's: the converter tells
   the user. With ConvertToOem the result is not looked at. */
uint32_t ZHST_CALL zhstConvertHostText(ZhstConverter converter, uint32_t direction, uint32_t length, void* buffer);

ZHST_END_C

#endif
