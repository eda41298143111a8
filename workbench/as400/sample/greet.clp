             PGM        PARM(&NAME)
             DCL        VAR(&NAME) TYPE(*CHAR) LEN(10)
             SNDPGMMSG  MSG('Good morning,' *BCAT &NAME)
             ENDPGM
