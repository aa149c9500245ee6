Every malformed line ends with the parse failure code 52 and a message on
standard output, never a crash.

Unknown and ambiguous words, and words that make no command:

  $ hostcli -zek frob lun
  *** ZEKCLI_PARSE_FAIL
      "frob" is not recognized
  
  [52]
  $ hostcli -zek s lun
  *** ZEKCLI_PARSE_FAIL
      Ambiguous selection, please choose "save" "script" "set" "show" or "stop"
  [52]

A keyword the command does not have:

  $ hostcli -zek show health -lun_number=1 | head -n 3
  *** ZEKCLI_PARSE_FAIL
      "lun_number" is not a valid modifier
      Syntax: show health

A required value left out, also as a value of nothing but blanks:

  $ hostcli -zek version adapter -compare | head -n 2
  *** ZEKCLI_PARSE_FAIL
      
  $ hostcli -zek version adapter -compare | sed -n 3p
      compare modifier requires a value
  $ hostcli -zek version adapter '-compare=   ' >/dev/null
  [52]
  $ hostcli -zek version adapter '-compare=   ' | sed -n 3p
      compare modifier requires a value

An unclosed quote, bytes above 127 and a very long line:

  $ hostcli -zek show lun '-lun_serial="abc' | head -n 2
  *** ZEKCLI_PARSE_FAIL
      Could not parse parameter near abc 
  $ hostcli -zek $'show\xe9' lun | sed -n 2p | od -An -c
                     "   s   h   o   w 351   "       i   s       n
     o   t       r   e   c   o   g   n   i   z   e   d  \n
  $ hostcli -zek show lun "$(printf 'x%.0s' $(seq 9000))" >/dev/null
  [52]

An append set that includes itself:

  $ hostcli -zek set append -append=loop -quiet -append=loop >/dev/null
  $ hostcli -zek show health -append=loop | sed -n 2p
      Command line got too long, most likely because -append=<name> expanded to a command line that included "-append=<same set name>", causing an infinite recursion
  $ hostcli -zek show health -append=loop >/dev/null
  [52]
