save script writes the adapter's configuration as lines of commands. With
-file the script goes to the file and the console shows only the success
text. The clock is pinned through the shim, so the Created line is fixed.

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=0 -file=adapter0.cfg
  Script generated successfully
  $ cat adapter0.cfg
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001001
  # Created Wed Nov 18 11:06:40 2026
  set fc -name="zek-prod-a"
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10C00
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10C00
  enable fc_port -port=1  /zek=2000001B32A10C00
  enable fc_port -port=2  /zek=2000001B32A10C00
  add drive -lun_wwuln=5000-C532-A10C-0000
  add drive -lun_wwuln=5000-C532-A10C-0001
  add drive -lun_wwuln=5000-C532-A10C-0002
  set pool -cache=800GB
  enable cache -mode=read_write_back -mirror= -lun_number=0 -fc_target=5006-0160-39A0-1122  /zek=2000001B32A10C00
  enable cache -mode=read_write_back -mirror= -lun_number=0 -fc_target=5006-0168-39A0-1122  /zek=2000001B32A10C00
  lock cache -fc_target=5006-0160-39A0-1122 -lun_number=0 -lun_start_lba=0 -lun_size_lba=2048
  lock cache -fc_target=5006-0160-39A0-1122 -lun_number=0 -lun_start_lba=1048576 -lun_size_lba=8192
  lock cache -fc_target=5006-0168-39A0-1122 -lun_number=0 -lun_start_lba=0 -lun_size_lba=2048
  lock cache -fc_target=5006-0168-39A0-1122 -lun_number=0 -lun_start_lba=1048576 -lun_size_lba=8192

Device 1 caches one LUN itself, read/write-through, and mirrors the
multi-path LUN of device 0:

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=1 -file=adapter1.cfg
  Script generated successfully
  $ cat adapter1.cfg
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001002
  # Created Wed Nov 18 11:06:40 2026
  set fc -name="zek-prod-b"
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10D00
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10D00
  enable fc_port -port=1  /zek=2000001B32A10D00
  enable fc_port -port=2  /zek=2000001B32A10D00
  add drive -lun_wwuln=5000-C532-A10D-0000
  add drive -lun_wwuln=5000-C532-A10D-0001
  set pool -cache=600GB
  enable cache -mode=read_write_through -lun_number=1 -fc_target=2100-0024-FF3C-5A10  /zek=2000001B32A10D00

Without -file each writer's section is shown as soon as it is complete,
each followed by a blank line:

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=1
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001002
  # Created Wed Nov 18 11:06:40 2026
  
  set fc -name="zek-prod-b"
  
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10D00
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10D00
  
  enable fc_port -port=1  /zek=2000001B32A10D00
  enable fc_port -port=2  /zek=2000001B32A10D00
  
  add drive -lun_wwuln=5000-C532-A10D-0000
  add drive -lun_wwuln=5000-C532-A10D-0001
  
  set pool -cache=600GB
  
  enable cache -mode=read_write_through -lun_number=1 -fc_target=2100-0024-FF3C-5A10  /zek=2000001B32A10D00
  
  Script generated successfully

With -useappend the script first defines the set, and the lines that select
the adapter name it too; the name, pool, drive and lock lines do not:

  $ hostcli -zek set append -append=site -quiet
  -append=site --> -quiet 
  
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=1 -useappend=site -file=append.cfg
  Script generated successfully
  $ cat append.cfg
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001002
  # Created Wed Nov 18 11:06:40 2026
  set append -quiet /append=site -quiet 
  set fc -name="zek-prod-b"
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10D00 -append=site
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10D00 -append=site
  enable fc_port -port=1  /zek=2000001B32A10D00 -append=site
  enable fc_port -port=2  /zek=2000001B32A10D00 -append=site
  add drive -lun_wwuln=5000-C532-A10D-0000
  add drive -lun_wwuln=5000-C532-A10D-0001
  set pool -cache=600GB
  enable cache -mode=read_write_through -lun_number=1 -fc_target=2100-0024-FF3C-5A10  /zek=2000001B32A10D00 -append=site

A set that does not exist is still named, with an empty set text:

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=1 -useappend=nosuch | head -4
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001002
  # Created Wed Nov 18 11:06:40 2026
  set append -quiet /append=nosuch 
  

An adapter without a symbolic name has no name line; one without caching
drives has no drive lines and a pool of size 0:

  $ hbasim export > bare.json
  $ python3 - <<'PY'
  > import json
  > san = json.load(open("bare.json"))
  > for adapter in san["adapters"]:
  >     if adapter["id"] == "2000001B32A10E00":
  >         adapter["symbolicName"] = ""
  >         adapter["drives"] = []
  >         adapter.pop("cachePoolBytes", None)
  > json.dump(san, open("bare.json", "w"))
  > PY
  $ hbasim reset bare.json > /dev/null
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=2000001B32A10E00 -file=bare.cfg
  Script generated successfully
  $ cat bare.cfg
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001003
  # Created Wed Nov 18 11:06:40 2026
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10E00
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10E00
  enable fc_port -port=1  /zek=2000001B32A10E00
  enable fc_port -port=2  /zek=2000001B32A10E00
  set pool -cache=0
  $ hbasim reset > /dev/null

A writer whose call fails ends the script there: the file holds what was
written so far, the success text is still shown, and the code is the
library's:

  $ hbasim fault 2000001B32A10C00 getPoolInfo 1000 > /dev/null
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek save script -zek=0 -file=cut.cfg
  Script generated successfully
  \r             \r*** General failure (esc)
  [255]
  $ cat cut.cfg
  # Configuration script for ZEK-8200 Caching HBA, Serial# ZK00001001
  # Created Wed Nov 18 11:06:40 2026
  set fc -name="zek-prod-a"
  set fc -port=1 -fc_link_rate=Auto  /zek=2000001B32A10C00
  set fc -port=2 -fc_link_rate=Auto  /zek=2000001B32A10C00
  enable fc_port -port=1  /zek=2000001B32A10C00
  enable fc_port -port=2  /zek=2000001B32A10C00
  add drive -lun_wwuln=5000-C532-A10C-0000
  add drive -lun_wwuln=5000-C532-A10C-0001
  add drive -lun_wwuln=5000-C532-A10C-0002

An adapter that does not describe itself stops the command before the
header: the file was opened, so it is there, but empty, and no success text
is shown:

  $ hbasim fault 2000001B32A10C00 getAdapterInfo 1000 > /dev/null
  $ hostcli -zek save script -zek=0 -file=none.cfg
  \r             \r*** General failure (esc)
  [255]
  $ wc -c < none.cfg
  0

A rescan that fails is returned before the file is opened:

  $ hbasim fault 2000001B32A10C00 scanFromAdapter 1000 > /dev/null
  $ hostcli -zek save script -zek=0 -file=noscan.cfg
  \r             \r*** General failure (esc)
  [255]
  $ test -e noscan.cfg || echo absent
  absent

An adapter that is not there fails the rescan:

  $ hostcli -zek save script -zek=7
  \r             \r*** Object not found (esc)
  [255]

A file that cannot be opened:

  $ hostcli -zek save script -zek=0 -file=/nonexistent/dir/a.cfg
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "/nonexistent/dir/a.cfg", (No such file or directory) (esc)
  [52]
