#ifndef Z7XFRPCS_CODE_TABLES_H
#define Z7XFRPCS_CODE_TABLES_H

/* What LoadCodeTable fills. A pair is a character of two bytes. Whatever is not named here is not read. */

/* Kind 1: single bytes. Each of the two runs has 256 entries of a byte, by the byte that is converted. */
enum ZhstSingleByteTable {
    ZhstSingleByteTableSize = 2824,
    ZhstSingleBytesToHost = 8,
    ZhstSingleBytesToPc = 776,
};

/* Kinds 5 and 6: pairs. A run of 256 bytes gives the row of each first byte, or 255 when no pair begins with it. A row
   has an entry of 16 bits for each second byte, low byte first: its high 8 bits are the first byte of the converted
   pair, its low ones the second; 0 when there is none. */
enum ZhstPairTable {
    ZhstPairTableSize = 66073,
    ZhstPairRowNumbers = 25,
    ZhstPairRows = 537,
    ZhstPairRowSize = 512,
    ZhstPairRowCount = 128,
    ZhstPairNoRow = 255,
};

#endif
