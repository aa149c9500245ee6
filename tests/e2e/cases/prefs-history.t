The history <home>/zekcli.log is kept only when it exists; the tool never
creates it. It receives the successful commands that change something.

  $ hostcli -zek set append -append=a -quiet >/dev/null
  $ ls zekcli.log
  ls: cannot access 'zekcli.log': No such file or directory
  [2]
  $ touch zekcli.log
  $ hostcli -zek set append -append=b -echo >/dev/null
  $ hostcli -zek show append >/dev/null
  $ hostcli -zek retval cli -rv=54 >/dev/null
  [54]
  $ hostcli -zek clear display >/dev/null 2>&1
  $ wc -l < zekcli.log
  2
  $ sed -E 's/^[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9:]{8} [0-9]{4} /DATE /' zekcli.log
  DATE set append -append=b -echo 
  DATE clear display 
