The action must come first. A selector that carries a value, or is written
with "/", marks the vector as the tool's but is not taken out, so the line
begins with a keyword and cannot be parsed.

  $ hostcli -zek=0 show lun
  *** ZEKCLI_PARSE_FAIL
      
  [52]
  $ hostcli /zek show lun
  *** ZEKCLI_PARSE_FAIL
      
  [52]
  $ hostcli -zek=0 show lun | od -An -c
     *   *   *       Z   E   K   C   L   I   _   P   A   R   S   E
     _   F   A   I   L  \n                  \n

A failed line leaves the preferences file alone.

  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]
