script csv writes one command per row of a CSV file. The command is -cmd;
every other keyword on the line is copied to each command, or, when its value
is one of csv_a to csv_z, replaced by that column of the row. Keywords come in
the order of their ids, not as typed, and commands start with a line end.

  $ printf '%s\r\n' 'LUN,Target,Comment' '2,2100-0024-FF3C-5A10,array-b' '0,, no target' > luns.csv
  $ printf '%s\n' '1,5006-0160-39A0-1122' > tail.csv && printf '3,no line end' >> tail.csv && cat tail.csv >> luns.csv
  $ hostcli -zek script csv -csv_file=luns.csv -file=enable.cfg -cmd="enable cache" -mode=read_write_through -lun_number=csv_a -fc_target=CSV_B -zek=0
  Script file "enable.cfg" for CSV file "luns.csv" created successfully
  $ cat enable.cfg
  # Script for comma separated value file luns.csv
  # >>> script csv -cmd="enable cache" -zek=0 -fc_target=CSV_B -lun_number=csv_a -mode=read_write_through
  #
  
  enable cache  -zek=0 -fc_target=Target -lun_number=LUN -mode=read_write_through
  enable cache  -zek=0 -fc_target=2100-0024-FF3C-5A10 -lun_number=2 -mode=read_write_through
  enable cache  -zek=0 -fc_target=5006-0160-39A0-1122 -lun_number=1 -mode=read_write_through

The title row became a command too (no row is special), the row with an empty
target gave none, and the last line, without its line end, is not used. The
script can be reviewed, edited and run:

  $ sed -i '/-lun_number=LUN/d' enable.cfg
  $ hostcli -zek execute script -file=enable.cfg | grep Success
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  Successfully enabled caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=1

Only csv_a to csv_z, whole and in any case, name a column: csv_, csv_aa and
csv_ab1 are values like any other. -mode=CSV_D takes column d, and its text
does not survive. A keyword without a value is copied bare.

  $ printf '%s\n' 'a,b,c,read_only,e' > cols.csv
  $ hostcli -zek script csv -csv_file=cols.csv -file=cols.cfg -cmd="modify cache" -mode=CSV_D -name=csv_ -owner=csv_aa -pw=csv_ab1 -accept_risk -max_read=2014
  Script file "cols.cfg" for CSV file "cols.csv" created successfully
  $ cat cols.cfg
  # Script for comma separated value file cols.csv
  # >>> script csv -cmd="modify cache" -accept_risk -max_read=2014 -mode=CSV_D -name=csv_ -owner=csv_aa -pw=csv_ab1
  #
  
  modify cache  -accept_risk -max_read=2014 -mode=read_only -name=csv_ -owner=csv_aa -pw=csv_ab1

All 26 columns, csv_a to csv_z. A column past the last cell repeats the last
cell, so a short row still gives a command.

  $ echo 1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26 > wide.csv && echo x,y >> wide.csv
  $ hostcli -zek script csv -csv_file=wide.csv -file=wide.cfg -cmd="x y" -cache=csv_a -clusterid=csv_b -compare=csv_c -constraint=csv_d -member=csv_e -name=csv_f -next=csv_g -offset=csv_h -owner=csv_i -port=csv_j -previous=csv_k -primary=csv_l -profile=csv_m -pw=csv_n -rv=csv_o -secondary=csv_p -seconds=csv_q -severity=csv_r -size=csv_s -smart=csv_t -sync=csv_u -time=csv_v -verbose=csv_w -vpgindex=csv_x -wwnn=csv_y -wwpn=csv_z >/dev/null && tail -n 3 wide.cfg
  
  x y  -cache=1 -clusterid=2 -compare=3 -constraint=4 -member=5 -name=6 -next=7 -offset=8 -owner=9 -port=10 -previous=11 -primary=12 -profile=13 -pw=14 -rv=15 -secondary=16 -seconds=17 -severity=18 -size=19 -smart=20 -sync=21 -time=22 -verbose=23 -vpgindex=24 -wwnn=25 -wwpn=26
  x y  -cache=x -clusterid=y -compare=y -constraint=y -member=y -name=y -next=y -offset=y -owner=y -port=y -previous=y -primary=y -profile=y -pw=y -rv=y -secondary=y -seconds=y -severity=y -size=y -smart=y -sync=y -time=y -verbose=y -vpgindex=y -wwnn=y -wwpn=y

The keywords of the frame are keywords like others: given on the line, they
are copied into each command, and they work on this command too (-quiet: no
message).

  $ hostcli -zek script csv -csv_file=cols.csv -file=frame.cfg -cmd="show lun" -zek=0 -quiet -lun_number=csv_e
  $ tail -n 1 frame.cfg
  show lun  -zek=0 -quiet -lun_number=e

Keyword values are remembered: -cmd not given takes the last one. -file is not
taken from memory, so that no file named in an earlier run is emptied unasked:
without it the script has no name, and the output cannot be opened.

  $ cp frame.cfg frame.keep
  $ hostcli -zek script csv -csv_file=cols.csv -lun_number=csv_a
  \r             \r*** Unknown return code 55 -- Unable to open file "", (No such file or directory) (esc)
  [55]
  $ cmp frame.cfg frame.keep && echo unchanged
  unchanged
  $ hostcli -zek script csv -csv_file=cols.csv -file=again.cfg -lun_number=csv_a >/dev/null && tail -n 1 again.cfg
  show lun  -lun_number=a

The console would take the script only from an empty script name, which
cannot be opened: an empty -file fails the same way.

  $ hostcli -zek script csv -csv_file=cols.csv -file= -lun_number=csv_a
  \r             \r*** Unknown return code 55 -- Unable to open file "", (No such file or directory) (esc)
  [55]

A CSV file that is missing, or that is a folder, fails with 55 and the reason.

  $ hostcli -zek script csv -csv_file=missing.csv -file=out.cfg -cmd=x
  \r             \r*** Unknown return code 55 -- Unable to open file "missing.csv", (No such file or directory) (esc)
  [55]
  $ ls out.cfg
  ls: cannot access 'out.cfg': No such file or directory
  [2]
  $ mkdir folder.csv && hostcli -zek script csv -csv_file=folder.csv -file=out.cfg -cmd=x
  \r             \r*** Unknown return code 55 -- Unable to open file "folder.csv", (Is a directory) (esc)
  [55]

-csv_file is required: the parser asks for it.

  $ hostcli -zek script csv -file=out.cfg -cmd=x
  Error:  -csv_file modifier must be specified
    Command syntax:
      script csv
  	-csv_file=<CSV file>
  	-file=<script file>
  	-cmd="<action> <item>"
  	[-<keyword>=<value>]
  	[-<keyword>=csv_a | csv_b | ... | csv_z]
  
  Use "-?" on the command line for help

Odd rows: an unterminated quote runs to the end of the row, a NUL byte is a
character like others, a row of a megabyte and one of 10,000 cells are read
whole.

  $ printf 'x,"open,y\n\000z,w\n' > odd.csv
  $ { head -c 1048576 /dev/zero | tr '\0' 'v'; printf ',end\n'; for i in $(seq 10000); do printf 'c%d,' $i; done; printf '\n'; } >> odd.csv
  $ hostcli -zek script csv -csv_file=odd.csv -file=odd.cfg -cmd=x -name=csv_b -owner=csv_a
  Script file "odd.cfg" for CSV file "odd.csv" created successfully
  $ tail -n +4 odd.cfg | cut -c1-60 | cat -v
  
  x  -name="open,y -owner=x
  x  -name=w -owner=^@z
  x  -name=end -owner=vvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvvv
  x  -name=c2 -owner=c1
  $ awk '{ print length }' odd.cfg | tail -n 2
  1048596
  21
