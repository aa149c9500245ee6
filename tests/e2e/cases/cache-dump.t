Saving the adapter's cache summary in a time-stamped file and showing it.

Without -folder the file goes to the home directory; what is shown is the
file's text and one more new line.

  $ hostcli -zek dump cache -zek=0 > shown.txt
  $ ls $HOME | grep CacheInfo | sed -E 's/[0-9]{4}-[0-9]{2}-[0-9]{2}_[0-9]{2}-[0-9]{2}-[0-9]{2}/<time>/'
  CacheInfo-2000001B32A10C00<time>.txt
  $ head -n 1 $HOME/CacheInfo-*.txt
  Cache dump of adapter 2000001B32A10C00
  $ grep -c "60060160A1B2C3D4E5F6000000000001" $HOME/CacheInfo-*.txt
  1
  $ (cat $HOME/CacheInfo-*.txt; echo; echo) | cmp - shown.txt

A folder that does not exist is made; the file goes there, named after the
adapter addressed.

  $ hostcli -zek dump cache -zek=1 -folder=$HOME/dumps/ >/dev/null
  $ ls $HOME/dumps | sed -E 's/[0-9]{4}-[0-9]{2}-[0-9]{2}_[0-9]{2}-[0-9]{2}-[0-9]{2}/<time>/'
  CacheInfo-2000001B32A10D00<time>.txt

-interval=0 is a single dump; above 100000 is refused; a folder that cannot
be made is refused.

  $ hostcli -zek dump cache -zek=0 -interval=0 -folder=$HOME/once >/dev/null
  $ ls $HOME/once | wc -l
  1
  $ hostcli -zek dump cache -zek=0 -interval=100001
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier requires a number in the range 0 to 100000 (esc)
  [52]
  $ hostcli -zek dump cache -zek=0 -folder=/proc/no/such/folder
  \r             \r*** ZEKCLI_PARSE_FAIL -- Directory create failed (esc)
  [52]

With an interval the dump repeats until the process is interrupted, each
round on a cleared screen, with the banner and the text twice. The test shim
lets the waits take no time, moves the clock on by each and interrupts the
second: two rounds, two files named by the clock, and the exit status of an
interrupted command.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek dump cache -zek=0 -interval=2 -folder=$HOME/loop > loop.txt 2>&1
  [2]
  $ ls $HOME/loop
  CacheInfo-2000001B32A10C002026-11-18_11-06-40.txt
  CacheInfo-2000001B32A10C002026-11-18_11-06-42.txt
  $ grep -c "Cache dump of adapter 2000001B32A10C00" loop.txt
  4
  $ grep -c "Device 0 on local host" loop.txt
  2
  $ head -n 1 loop.txt
  [ Device 0 on local host ]

An adapter the library cannot reach.

  $ hostcli -zek dump cache -zek=2000001B32A10F00 >/dev/null
  [255]
