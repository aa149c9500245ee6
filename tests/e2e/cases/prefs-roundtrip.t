The preferences file <home>/zekcli.ini carries keyword values and append sets
from one run to the next. It is private to the user and written only after a
command that succeeded.

A first run that fails writes nothing:

  $ hostcli -zek retval cli -rv=54 >/dev/null
  [54]
  $ ls -a
  .
  ..

A successful one writes the whole tree behind the header 2, 103, 6, 4:

  $ hostcli -zek set append -append=site -quiet
  -append=site --> -quiet 
  
  $ stat -c '%a %n' zekcli.ini
  600 zekcli.ini
  $ od -A d -t d4 -N 16 zekcli.ini
  0000000           2         103           6           4
  0000016
  $ ls -a
  .
  ..
  zekcli.ini

The next process finds the set:

  $ hostcli -zek show append
  -append= --> "-quiet "
  

A failed command leaves the file as it was, with the values it was given:

  $ cp zekcli.ini before.ini
  $ hostcli -zek retval cli -rv=54 >/dev/null
  [54]
  $ cmp zekcli.ini before.ini
  $ hostcli -zek version cli -nosuchkeyword >/dev/null
  [52]
  $ cmp zekcli.ini before.ini

A foreign or damaged file is read as far as it makes sense and the run goes
on; the next successful command replaces it:

  $ head -c 3000 before.ini > zekcli.ini
  $ hostcli -zek version cli -name
  2.103.6.4.0.0 (no-eol)
  $ od -A d -t d4 -N 16 zekcli.ini
  0000000           2         103           6           4
  0000016
  $ printf 'not a preferences file at all' > zekcli.ini
  $ hostcli -zek show append
  $ od -A d -t d4 -N 16 zekcli.ini
  0000000           2         103           6           4
  0000016
  $ stat -c '%a' zekcli.ini
  600
