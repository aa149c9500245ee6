The simulated library reports the version the command line expects, so no
"Using HBA API library version" note appears, and it answers for the remote
agent that the default SAN defines at 127.0.10.1.

  $ hostcli -zek version cli
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  $ hostcli -zek version cli -agent=127.0.10.1
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
      rmtagent_zek agent found on 127.0.10.1
  
  

Asking the version created the default SAN on first use.

  $ hbasim show | head -1
  SAN "default"
