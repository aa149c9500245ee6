Files the tool is given by name may be anything: a FIFO nobody writes to, a
directory, a device that never ends. No command waits on one, and none
loses what it was not asked to replace. `timeout` turns a hang into status
124, so a wait would show here.

A FIFO as the preferences file: every command goes on without it, and it is
not replaced by a regular file.

  $ mkfifo zekcli.ini
  $ timeout 10 hostcli -zek version cli
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  $ timeout 10 hostcli -zek set adapter -zek=0 -name=through-fifo | head -1
  Adapter symbolic name set successfully
  $ test -p zekcli.ini && echo still a fifo
  still a fifo
  $ rm zekcli.ini

A FIFO as the history: history is off, the command succeeds.

  $ mkfifo zekcli.log
  $ timeout 10 hostcli -zek set adapter -zek=0 -name=history-fifo | head -1
  Adapter symbolic name set successfully
  $ rm zekcli.log

Text and result files: a FIFO without a reader, a directory and a full disk
are failures (55) with their reason; the change the command made stays made.
/dev/null and a pipe with a reader are written.

  $ mkfifo out.fifo
  $ timeout 10 hostcli -zek version cli -textfile=out.fifo
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r*** Unknown return code 55 -- Unable to open file "out.fifo", (No process reads the pipe) (esc)
  \r             \r*** Unknown return code 55 -- Unable to open file "out.fifo", (No process reads the pipe) (esc)
  [55]
  $ timeout 10 hostcli -zek set adapter -zek=0 -name=result-fifo -result=out.fifo
  Adapter symbolic name set successfully
  \r             \r*** Unknown return code 55 -- Unable to open file "out.fifo", (No process reads the pipe) (esc)
  [55]
  $ python3 -c "import os, subprocess
  > reader = os.open('out.fifo', os.O_RDONLY | os.O_NONBLOCK)
  > subprocess.run(['hostcli', '-zek', 'version', 'cli', '-quiet', '-textfile=out.fifo'], timeout=10)
  > print(os.read(reader, 4096).decode(), end='')"
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  $ mkdir folder
  $ hostcli -zek version cli -textfile=folder
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r*** Unknown return code 55 -- Unable to open file "folder", (Is a directory) (esc)
  \r             \r*** Unknown return code 55 -- Unable to open file "folder", (Is a directory) (esc)
  [55]
  $ hostcli -zek version cli -quiet -textfile=/dev/null
  $ hostcli -zek set adapter -zek=0 -name=full-disk -textfile=/dev/full
  Adapter symbolic name set successfully
  \r             \r*** Unknown return code 55 -- Unable to write file "/dev/full", (No space left on device) (esc)
  \r             \r*** Unknown return code 55 -- Unable to write file "/dev/full", (No space left on device) (esc)
  [55]
  $ hostcli -zek set adapter -zek=0 -name=full-result -result=/dev/full
  Adapter symbolic name set successfully
  \r             \r*** Unknown return code 55 -- Unable to write file "/dev/full", (No space left on device) (esc)
  [55]
  $ hostcli -zek show adapter -zek=0 | grep -i 'symbolic'
          Symbolic Name       = full-result

A script must be a regular file; a line longer than 1 MiB fails that line
(52) and the run goes on or stops as -continue_on_error says.

  $ mkfifo script.fifo
  $ timeout 10 hostcli -zek execute script -file=script.fifo
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "script.fifo", (Not a regular file) (esc)
  [52]
  $ timeout 10 hostcli -zek execute script -file=/dev/zero
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "/dev/zero", (Not a regular file) (esc)
  [52]
  $ timeout 10 hostcli -zek execute script -file=folder
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "folder", (Is a directory) (esc)
  [52]
  $ python3 -c "import sys; sys.stdout.write('version cli -' + 'x' * (2 << 20) + '\n' + 'version cli\n')" > long.cfg
  $ timeout 60 hostcli -zek execute script -file=long.cfg
  ??? [ local host ]
  
  Script "long.cfg" failed to complete
  \r              (esc)
      IP = ******
      1 commands attempted, 0 successful, 1 failed
          "Parse Error"
              ZEKCLI_PARSE_FAIL at line 1
  
  
  
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Line 1 is longer than 1048576 bytes (esc)
  [52]
  $ timeout 60 hostcli -zek execute script -file=long.cfg -continue_on_error
  \r             \r2:  (esc)
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "long.cfg" completed OK
  \r              (esc)
      IP = ******
      1 commands attempted, 0 successful, 1 failed
          "Parse Error"
              ZEKCLI_PARSE_FAIL at line 1
  
  
      IP = 
      1 commands attempted, 1 successful
  
  
  

A symlinked preferences file is written through to its target.

  $ mkdir real
  $ hostcli -zek version cli -name > /dev/null; mv zekcli.ini real/prefs.ini; ln -s real/prefs.ini zekcli.ini
  $ cp real/prefs.ini before.ini
  $ hostcli -zek set adapter -zek=1 -name=linked -quiet
  $ test -L zekcli.ini && echo still a link
  still a link
  $ cmp -s before.ini real/prefs.ini || echo the target changed
  the target changed

The saved log files of the adapter's log: a FIFO is neither read nor, without
a reader, written (report log ends with 0 and no word, as it does for any
report it cannot write).

  $ mkfifo log.fifo
  $ timeout 10 hostcli -zek list log -zek=0 -file=log.fifo
  "log.fifo" is not a saved log: not a regular file
  \r             \r*** Object not found --     FAIL --> Could not get HLogView (esc)
  [255]
  $ timeout 10 hostcli -zek report log -zek=0 -file=log.fifo
