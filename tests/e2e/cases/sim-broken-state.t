A state file from a newer simulator, or one damaged by hand, is never a
crash: the command fails, the message names the file and what is wrong, and
the file stays as it was.

  $ mkdir -p .hbasim
  $ printf '{ "format": "hbasim-scenario", "version": 3 }\n' > .hbasim/san.json
  $ hostcli -zek show adapter | sed "s#$HOME#HOME#" | head -1
  simulator state file "HOME/.hbasim/san.json": format version 3 is not supported (this simulator reads version 1); it may come from a newer hbasim
  $ hostcli -zek show adapter | grep -c 'The simulated SAN could not be read or written'
  1
  $ cat .hbasim/san.json
  { "format": "hbasim-scenario", "version": 3 }
  $ printf '{ "format": "hbasim-scenario", "version": 1, "luns": [ { "wwuln": "AB", "paths": [ { "target": "nowhere" } ] } ] }\n' > .hbasim/san.json
  $ hostcli -zek show lun -zek=0 | sed "s#$HOME#HOME#" | head -1
  simulator state file "HOME/.hbasim/san.json": LUN "AB" has a path through unknown target "nowhere"

A demonstration file that cannot be used is refused the same way.

  $ printf 'not json' > demo.json
  $ hostcli -zek show adapter -demonstration_file=demo.json 2>&1 | grep -c 'demonstration file "demo.json": parse error'
  1
