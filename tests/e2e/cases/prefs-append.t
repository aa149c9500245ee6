Append sets live in the preferences file, so they work across processes.

  $ hostcli -zek set append -append=Q -quiet
  -append=Q --> -quiet 
  
  $ hostcli -zek version cli -append=q
  $ hostcli -zek show append -append=q
  $ hostcli -zek set append -append=verbose -echo
  -append=verbose --> -echo 
  
  $ hostcli -zek version cli -name -append=verbose
  version cli -name -append=verbose 
  2.103.6.4.0.0 (no-eol)
  $ hostcli -zek show append
  -append= --> "-quiet "
  -append= --> "-echo "
  

Giving no text removes a set; the parser then no longer knows it:

  $ hostcli -zek set append -append=q
  -append=q contents cleared
  
  $ hostcli -zek show append -append=q | head -n 2
  *** ZEKCLI_PARSE_FAIL
      q is not recognized
  $ hostcli -zek set append -append=empty
  -append=empty contents cleared
  
  $ hostcli -zek show append -append=empty
  \r             \r*** Object not found -- Append set "empty" not found (esc)
  [255]

A set that names itself behind another keyword stops instead of looping:

  $ hostcli -zek set append -append=loop -quiet -append=loop >/dev/null
  $ hostcli -zek version cli -append=loop | sed -n 2p
      Command line got too long, most likely because -append=<name> expanded to a command line that included "-append=<same set name>", causing an infinite recursion

The bound is on the line being read, not on the sum of what sets added: a
long set used many times passes as long as each use is read before the next
one comes. Here 42 uses of a set of 28 -quiet (196 characters each, 8,232 in
all) never make the line longer than 700 characters.

  $ hostcli -zek set append -append=x $(printf -- '-quiet %.0s' $(seq 28)) | grep -o -- -quiet | wc -l
  28
  $ hostcli -zek retval cli -rv=53 $(printf -- '-append=x %.0s' $(seq 42))
  [53]
  $ hostcli -zek retval cli -rv=53 $(printf -- '-append=x %.0s' $(seq 400))
  [53]

Two sets that name each other stop the same way as a set that names itself:

  $ hostcli -zek set append -append=ping -quiet -append=pong >/dev/null
  $ hostcli -zek set append -append=pong -echo -append=ping >/dev/null
  $ hostcli -zek version cli -append=ping | sed -n 2p
      Command line got too long, most likely because -append=<name> expanded to a command line that included "-append=<same set name>", causing an infinite recursion
