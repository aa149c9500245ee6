retval cli explains a return value. The CLI's own values come back as the
command's code, so a script can test them; other values are explained by the
management library, and give 54 when they mean a failure.

  $ hostcli -zek retval cli -rv=0
  $ hostcli -zek retval cli -rv=51
  \r             \r*** ZEKCLI_INIT_FAIL -- CLI could not start because the API library failed to load (esc)
  [51]
  $ hostcli -zek retval cli -rv=52
  \r             \r*** ZEKCLI_PARSE_FAIL -- CLI could not parse the command line input (esc)
  [52]
  $ hostcli -zek retval cli -rv=53
  (No action taken)  -- User was prompted [yes/no] to accept risk, and the answer was not "yes"
  [53]
  $ hostcli -zek retval cli -rv=54
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  [54]
  $ hostcli -zek retval cli -rv=55
  \r             \r*** Unknown return code 55 -- CLI Command execution OK, but unable to output results, (e.g. file output required but could not open file) (esc)
  [55]
  $ hostcli -zek retval cli -rv=1005
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI return value "1005" ==> No adapter was found (esc)
  [54]
  $ hostcli -zek retval cli -rv=1

version cli, for people and for scripts:

  $ hostcli -zek version cli
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  $ hostcli -zek version cli -name
  2.103.6.4.0.0 (no-eol)
  $ hostcli -zek version -agent=127.0.10.1
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
      rmtagent_zek agent found on 127.0.10.1
  
  

wait time counts down on the console; 0 or an out-of-range value ends at once:

  $ hostcli -zek wait time -seconds=0
  
  \r        \r (esc) (no-eol)
  $ hostcli -zek wait time -seconds=2592000 -quiet
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek wait time -seconds=1
  
  \r        \r00:01\r        \r (esc) (no-eol)
