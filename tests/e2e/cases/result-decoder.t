zekcli-result reads a -result file record by record: the command, its
status with the CLI's words, and the payload decoded field by field. The
fields are those that the command shows as text.

  $ hostcli -zek list adapter -result=out.dat >/dev/null
  $ hostcli -zek show memory -zek=0 -result=out.dat | sed -n 3,4p
      Physical (free/total)        = 1311712 / 4194304
      Buffer pool (free/total)     = 40898 / 65536
  $ zekcli-result out.dat
  Record 1: list adapter
    Status: 0 CLI Command completed OK
  Record 2: show memory
    Status: 0 CLI Command completed OK
    KMemoryInfo
      physicalTotal = 4194304
      physicalFree = 1311712
      bufferPoolTotal = 65536
      bufferPoolFree = 40898
      processBlocksTotal = 512
      processBlocksFree = 431
      requestBlocksTotal = 8192
      requestBlocksFree = 7938
      eventBlocksTotal = 2048
      eventBlocksFree = 2011
      controlBlocksTotal = 1024
      controlBlocksFree = 977

CSV: a header line whenever the shape of the line changes.

  $ zekcli-result out.dat --csv
  action,item,status
  list,adapter,0
  action,item,status,record,physicalTotal,physicalFree,bufferPoolTotal,bufferPoolFree,processBlocksTotal,processBlocksFree,requestBlocksTotal,requestBlocksFree,eventBlocksTotal,eventBlocksFree,controlBlocksTotal,controlBlocksFree
  show,memory,0,KMemoryInfo,4194304,1311712,65536,40898,512,431,8192,7938,2048,2011,1024,977

JSON: one document.

  $ zekcli-result out.dat --json | python3 -c 'import json,sys; d=json.load(sys.stdin); print([(r["offset"], r["action"], r["item"], r["status"], "payload" in r) for r in d["records"]])'
  [(0, 'list', 'adapter', 0, False), (40, 'show', 'memory', 0, True)]

Damaged, foreign, empty or missing files are refused with status 1; the
output stays empty.

  $ head -c 60 out.dat > cut.dat && zekcli-result cut.dat --json 2>&1
  zekcli-result: cut.dat is not a readable result file: record cut short at byte 40: 20 bytes left, a record has at least 40
  [1]
  $ echo 'not a result' > text.dat && zekcli-result text.dat 2>&1
  zekcli-result: text.dat is not a readable result file: not a result record at byte 0: header size 544501614, expected 32
  [1]
  $ : > empty.dat && zekcli-result empty.dat 2>&1
  zekcli-result: empty.dat is not a readable result file: the file is empty
  [1]
  $ zekcli-result nowhere.dat 2>&1
  zekcli-result: cannot read nowhere.dat: No such file or directory
  [1]

A wrong command line shows the usage, status 2.

  $ zekcli-result 2>&1
  usage: zekcli-result FILE [--json|--csv]
  [2]
  $ zekcli-result out.dat --xml 2>&1
  usage: zekcli-result FILE [--json|--csv]
  [2]
