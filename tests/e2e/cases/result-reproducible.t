A result file holds the same bytes whichever process wrote it: payloads are
zero-filled before their fields are set, and the slot of each object image
that holds a code address (which means nothing outside the process that
wrote it) is written as zeros. Each command with a payload writes its result
twice, in two processes; the two files must be equal byte for byte. The
payload starts at byte 40 of the file; `same` shows 8 bytes of it.

  $ same() {
  >   at=$1; shift
  >   hostcli -zek "$@" -quiet -result=first.dat; hostcli -zek "$@" -quiet -result=second.dat
  >   cmp first.dat second.dat && echo "$*:$(od -A n -t x1 -N 8 -j $at first.dat)"
  >   rm -f first.dat second.dat
  > }

A single record: the first 8 bytes of its image, its code address, are
zero.

  $ for command in 'show memory -zek=0' 'show health -zek=0' 'show sfp -zek=0 -port=1' 'show nvdimm -zek=0' \
  >     'show cluster' 'list cluster' 'show statistics -zek=0'; do same 40 $command; done
  show memory -zek=0: 00 00 00 00 00 00 00 00
  show health -zek=0: 00 00 00 00 00 00 00 00
  show sfp -zek=0 -port=1: 00 00 00 00 00 00 00 00
  show nvdimm -zek=0: 00 00 00 00 00 00 00 00
  show cluster: 00 00 00 00 00 00 00 00
  list cluster: 00 00 00 00 00 00 00 00
  show statistics -zek=0: 00 00 00 00 00 00 00 00

A counted block: 8 bytes of header (its size, then the count of records),
then each record after a word with its size. The first record's image
starts at byte 52; a block that holds no record ends with its header.

  $ for command in 'list lun -zek=0' 'show lun -zek=0' 'show lun' 'list lun' 'show reservation -zek=0'; do
  >   same 40 $command; same 52 $command; done
  list lun -zek=0: 08 00 00 00 0a 00 00 00
  list lun -zek=0: 00 00 00 00 00 00 00 00
  show lun -zek=0: 08 00 00 00 0b 00 00 00
  show lun -zek=0: 00 00 00 00 00 00 00 00
  show lun: 08 00 00 00 08 00 00 00
  show lun: 00 00 00 00 00 00 00 00
  list lun: 08 00 00 00 00 00 00 00
  list lun:
  show reservation -zek=0: 08 00 00 00 00 00 00 00
  show reservation -zek=0:

The drive, pool, port and fabric commands: a single record for the pool
and the port (set fc writes the port as it reads back), a counted block for
the rest.

  $ for command in 'show pool -zek=0' 'show fc -zek=0 -port=1' 'set fc -zek=0 -port=1'; do same 40 $command; done
  show pool -zek=0: 00 00 00 00 00 00 00 00
  show fc -zek=0 -port=1: 00 00 00 00 00 00 00 00
  set fc -zek=0 -port=1: 00 00 00 00 00 00 00 00
  $ for command in 'list drive -zek=0' 'show drive -zek=0' 'list target -zek=0' \
  >     'show target -zek=0 -fc_target=5006-0160-39A0-1122' 'list initiator -zek=0' 'show initiator -zek=0' \
  >     'list device -zek=0' 'show device -zek=0'; do
  >   same 40 $command; same 52 $command; done
  list drive -zek=0: 08 00 00 00 04 00 00 00
  list drive -zek=0: 00 00 00 00 00 00 00 00
  show drive -zek=0: 08 00 00 00 04 00 00 00
  show drive -zek=0: 00 00 00 00 00 00 00 00
  list target -zek=0: 08 00 00 00 05 00 00 00
  list target -zek=0: 00 00 00 00 00 00 00 00
  show target -zek=0 -fc_target=5006-0160-39A0-1122: 08 00 00 00 01 00 00 00
  show target -zek=0 -fc_target=5006-0160-39A0-1122: 00 00 00 00 00 00 00 00
  list initiator -zek=0: 08 00 00 00 03 00 00 00
  list initiator -zek=0: 00 00 00 00 00 00 00 00
  show initiator -zek=0: 08 00 00 00 03 00 00 00
  show initiator -zek=0: 00 00 00 00 00 00 00 00
  list device -zek=0: 08 00 00 00 08 00 00 00
  list device -zek=0: 00 00 00 00 00 00 00 00
  show device -zek=0: 08 00 00 00 08 00 00 00
  show device -zek=0: 00 00 00 00 00 00 00 00
