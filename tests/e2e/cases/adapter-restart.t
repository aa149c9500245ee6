restart adapter asks the adapter to restart, shows the banner, and then
waits: ten seconds first, then a dot for every question of the adapter,
three seconds apart, until it answers again. The test shim lets the waits
take no time and moves the simulated clock on by each.

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek restart adapter -zek=1 -result
  [ Device 1 on local host ]
  
  ZEK is restarting..... Adapter restarting completed
  

  $ od -A d -t d4 restart_adapter.dat | sed -n 3p
  0000032           0           0

The adapter answers again in the next process:

  $ hostcli -zek version adapter -zek=1 -compare=4.2.1.7
  Confirmed:  Adapter firmware version is 4.2.1.7

A refusal of the restart itself is passed on before any waiting:

  $ hbasim fault 2000001B32A10C00 restart 1000 >/dev/null
  $ hostcli -zek restart adapter -zek=0
  \r             \r*** General failure (esc)
  [255]
