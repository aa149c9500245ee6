factory_reset adapter asks first, on standard output, and reads the answer
from standard input. Only the exact word "yes" goes on.

  $ echo yes | hostcli -zek factory_reset adapter -zek=1 -result
  All persistent settings will be erased, (data on drives will not be changed)  Are you sure you want to reset the persistent settings for this adapter [yes/no]? [ Device 1 on local host ]
  
  Reset successful -- 'restart adapter' is required for changes to take effect

The library's code 1, success with a restart needed, is in the record:

  $ od -A d -t d4 factory_reset_adapter.dat | sed -n 3p
  0000032           1           0

"Yes" is not "yes": nothing is done and the command ends with 53.

  $ echo Yes | hostcli -zek factory_reset adapter -zek=1 -result=refused.dat
  All persistent settings will be erased, (data on drives will not be changed)  Are you sure you want to reset the persistent settings for this adapter [yes/no]? (No action taken) 
  [53]

  $ test -e refused.dat || echo "no result record"
  no result record

Nothing at all to read is a refusal as well:

  $ hostcli -zek factory_reset adapter -zek=1 <&-
  All persistent settings will be erased, (data on drives will not be changed)  Are you sure you want to reset the persistent settings for this adapter [yes/no]? (No action taken) 
  [53]

  $ hostcli -zek factory_reset adapter -zek=1 </dev/null
  All persistent settings will be erased, (data on drives will not be changed)  Are you sure you want to reset the persistent settings for this adapter [yes/no]? (No action taken) 
  [53]


-accept_risk skips the question:

  $ hostcli -zek factory_reset adapter -zek=0 -accept_risk </dev/null
  [ Device 0 on local host ]
  
  Reset successful -- 'restart adapter' is required for changes to take effect
