The simulator's writers replace a regular file or a missing name by rename,
so that nobody reads half a file; they write through a symlink to its
target, keeping the link; and they write a device or a pipe with a reader in
place, since a rename would destroy it. Messages name the file given, never
a temporary one.

  $ hbasim export real.json && ln -s real.json link.json && rm real.json
  $ hbasim export link.json && test -L link.json && grep -c hbasim-scenario real.json
  1
  $ hbasim generate 2 10 --output link.json && test -L link.json && grep -c '"adapters"' real.json
  Generated 2 adapters, 16 targets, 8 LUNs with 10 paths into link.json
  1
  $ ln -s /dev/null sink && hbasim export sink && test -L sink && echo still a link
  still a link
  $ hostcli -zek save demonstration_file -zek=0 -filepath=sink && test -L sink && echo still a link
  [ Device 0 on local host ]
  
  DEMONSTRATION file saved successfully
  
  still a link
  $ mkfifo pipe
  $ timeout 10 hbasim export pipe
  hbasim: cannot write "pipe": No process reads the pipe
  [1]
  $ python3 -c "import os, subprocess
  > reader = os.open('pipe', os.O_RDONLY | os.O_NONBLOCK)
  > subprocess.run(['hbasim', 'export', 'pipe'], timeout=10)
  > print(os.read(reader, 65536).decode().count('hbasim-scenario'))"
  1
  $ test -p pipe && echo still a pipe
  still a pipe
  $ mkdir folder && hbasim export folder
  hbasim: cannot write "folder": Is a directory
  [1]

A state named through a symlink is changed in its target; the link stays,
and the two names never drift apart.

  $ hbasim export elsewhere.json && ln -s elsewhere.json named.json
  $ HBASIM_STATE=$HOME/named.json hostcli -zek set adapter -zek=0 -name=linked-state | head -1
  Adapter symbolic name set successfully
  $ test -L named.json && grep -c '"linked-state"' elsewhere.json
  1

A number its field cannot hold is refused with the field's name, and the
file is left as it was.

  $ hbasim export > good.json
  $ for bad in -5 1.5 18446744073709551616; do
  >   sed "0,/\"cachePoolBytes\": [0-9]*/s//\"cachePoolBytes\": $bad/" good.json > bad.json && cp bad.json before.json
  >   HBASIM_STATE=$HOME/bad.json hostcli -zek set adapter -zek=0 -name=x | sed "s#$HOME#HOME#"
  >   cmp -s bad.json before.json && echo unchanged
  > done
  simulator state file "HOME/bad.json": the field "/adapters/0/cachePoolBytes" is out of range: -5
  \r             \r*** The simulated SAN could not be read or written (esc)
  unchanged
  simulator state file "HOME/bad.json": the field "/adapters/0/cachePoolBytes" is out of range: 1.5
  \r             \r*** The simulated SAN could not be read or written (esc)
  unchanged
  simulator state file "HOME/bad.json": the field "/adapters/0/cachePoolBytes" is out of range: 1.8446744073709552e+19
  \r             \r*** The simulated SAN could not be read or written (esc)
  unchanged
