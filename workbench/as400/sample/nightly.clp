/* Saves the library and tells the operator.                         */
             PGM
             DCL        VAR(&LIB) TYPE(*CHAR) LEN(10) VALUE('QGPL')

             SAVLIB     LIB(&LIB) DEV(TAP01)
             MONMSG     MSGID(CPF0000) EXEC(GOTO CMDLBL(FAILED))
             SNDMSG     MSG('Library' *BCAT &LIB *BCAT 'is saved') +
                          TOUSR(*SYSOPR)
             RETURN
FAILED:      SNDMSG     MSG('Library' *BCAT &LIB *BCAT 'is NOT saved') +
                          TOUSR(*SYSOPR)
             ENDPGM
