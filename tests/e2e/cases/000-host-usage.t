The host program forwards only vectors addressed to the tool; anything else
gets a short usage on standard error and status 2.

  $ hostcli show lun 2>&1 | head -n 1
  usage: hostcli -zek <action> <item> [-keyword=value ...]
  $ hostcli show lun >/dev/null 2>&1
  [2]
