The simulator reads its state only from a regular file of at most 256 MiB.
Anything else is refused at once, by every command and by hbasim, with the
message naming the file: a FIFO would block the reader for ever, and a device
such as /dev/zero never ends. The command fails with code 1011, whose text
closes its output; the file is left as it is.

  $ mkdir .hbasim
  $ mkfifo .hbasim/san.json
  $ hostcli -zek show adapter > out.txt
  [255]
  $ sed "s#$HOME#HOME#" out.txt
  simulator state file "HOME/.hbasim/san.json" is not a regular file
  \r             \r*** The simulated SAN could not be read or written (esc)
  $ hbasim show 2> err.txt
  [1]
  $ sed "s#$HOME#HOME#" err.txt
  hbasim: simulator state file "HOME/.hbasim/san.json" is not a regular file
  $ hbasim fault zek-prod-a enableCache 1000 2> err.txt
  [1]
  $ sed "s#$HOME#HOME#" err.txt
  hbasim: simulator state file "HOME/.hbasim/san.json" is not a regular file
  $ test -p .hbasim/san.json && echo still a FIFO
  still a FIFO
  $ rm .hbasim/san.json
  $ ln -s /dev/zero .hbasim/san.json
  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 > out.txt
  [255]
  $ sed "s#$HOME#HOME#" out.txt
  simulator state file "HOME/.hbasim/san.json" is not a regular file
  \r             \r*** The simulated SAN could not be read or written (esc)
  $ hbasim export 2>&1 | sed "s#$HOME#HOME#"
  hbasim: simulator state file "HOME/.hbasim/san.json" is not a regular file
  $ rm .hbasim/san.json
  $ truncate -s 257M .hbasim/san.json
  $ hostcli -zek list adapter > out.txt
  [255]
  $ sed "s#$HOME#HOME#" out.txt
  simulator state file "HOME/.hbasim/san.json" is larger than 256 MiB
  \r             \r*** The simulated SAN could not be read or written (esc)
  $ hbasim show 2>&1 | sed "s#$HOME#HOME#"
  hbasim: simulator state file "HOME/.hbasim/san.json" is larger than 256 MiB
  $ wc -c < .hbasim/san.json
  269484032

hbasim reset replaces what is there with a good state.

  $ hbasim reset | sed "s#$HOME#HOME#"
  State reset to the default SAN in HOME/.hbasim/san.json
  $ hostcli -zek list adapter | head -n 1
  -clusterid="prodcluster"   

A writer killed between writing its temporary file and putting it in place
leaves that file behind; the next change, made under the lock, removes the
files of writers that are gone and leaves the rest alone.

  $ printf '{ "format": "hbasim-scenario", ' > .hbasim/san.json.tmp.999999999
  $ printf 'something else' > .hbasim/san.json.tmp.notes
  $ hostcli -zek show adapter -zek=0 >/dev/null
  $ ls .hbasim
  san.json
  san.json.lock
  san.json.tmp.999999999
  san.json.tmp.notes
  $ hbasim fault zek-prod-a setBeacon 1000
  $ ls .hbasim
  san.json
  san.json.lock
  san.json.tmp.notes
