The test shim that cases preload through $ZEK_SHIM (see tests/e2e/run) lets
waits take no time: each moves the simulated clock, HBASIM_TIME, on instead,
and the program's own clock is that one.

  $ LD_PRELOAD=$ZEK_SHIM date -u '+%F %T'
  2026-11-18 11:06:40
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek wait time -seconds=86400 -quiet

The simulator in the same process sees the time pass: between the two
commands of this script the adapter's uptime grows by the hour waited.

  $ printf 'show health -zek=0\nwait time -seconds=3600 -quiet\nshow health -zek=0\n' > wait.txt
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek execute script -file=wait.txt | grep Uptime
      System Uptime: 1:12:1
      System Uptime: 2:12:1

With ZEK_SHIM_CYCLES=N the Nth wait ends in SIGINT, as from Ctrl-C: hostcli
stops through its handler with 2 after the countdown has shown N seconds, and
a program without a handler dies of the signal.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 hostcli -zek wait time -seconds=60
  
  \r        \r01:00\r        \r00:59\r        \r00:58 (esc) (no-eol)
  [2]
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 sleep 100
  [130]

"clear" clears nothing and prints nothing.

  $ LD_PRELOAD=$ZEK_SHIM TERM=xterm hostcli -zek clear display | od -c
  0000000
