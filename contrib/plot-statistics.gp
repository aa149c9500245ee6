# Charts a statistics CSV file of zekcli as a PNG image.
#
#   gnuplot -e "input='merged.csv'; output='merged.png'" plot-statistics.gp
#
# input is either a per-LUN file as "show lun_statistics" writes it (first
# line "LUN,..."): cache hit rates in percent and I/O counts over time; or a
# table made by "merge csv" (first line ",,Target ..."): read and write
# blocks per second of every target over time.

if (!exists("input")) { print "plot-statistics.gp: set input='FILE.csv' (and output='FILE.png')"; exit status 2 }
if (!exists("output")) { output = input . ".png" }
# Under gnuplot 5 system() needs no escaping beyond single quotes in names.
quoted = "'" . input . "'"
first = system("head -n 1 " . quoted . " 2>/dev/null")
if (strlen(first) == 0) { print sprintf("plot-statistics.gp: %s is empty or cannot be read", input); exit status 1 }

lunFile = first[1:4] eq "LUN,"
if (!lunFile && strstrt(first, "Target") == 0) { print sprintf("plot-statistics.gp: %s is neither a LUN statistics file nor a merge csv table", input); exit status 1 }

set datafile separator ","
set terminal pngcairo size 1200,700 noenhanced font ",10"
set output output
set xdata time
set format x "%H:%M:%S"
set xlabel "time"
set grid
set key outside right top
# Date and time stand in two columns; title lines hold no numbers and are
# passed over by gnuplot itself.

if (lunFile) {
    # "LUN,<number>,<vp group>,<target>,"
    field(n) = system("head -n 1 " . quoted . " | cut -d, -f" . n)
    set title sprintf("Cache statistics of LUN %s on target %s", field(2), field(4))
    set ylabel "cache hits (%)"
    set y2label "I/O count"
    set ytics nomirror
    set y2tics
    plot input using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):4 with lines lw 2 title "read hits", \
         "" using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):6 with lines lw 2 title "write hits", \
         "" using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):8 with lines lw 2 title "total hits", \
         "" using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):10 axes x1y2 with lines dt 2 title "read I/O", \
         "" using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):11 axes x1y2 with lines dt 2 title "write I/O"
} else {
    # Four columns per target after date and time; the first line names them.
    targets = system("head -n 1 " . quoted . " | tr ',' '\\n' | sed -n 's/^Target //p' | tr '\\n' ' '")
    set title "Blocks per second by target: " . input
    set ylabel "blocks/s"
    plot for [t = 1:words(targets)] input using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):(column(3 + 4 * (t - 1))) \
             with lines lw 2 title word(targets, t) . " read", \
         for [t = 1:words(targets)] input using (timecolumn(1, "%m/%d/%Y") + timecolumn(2, "%H:%M:%S")):(column(4 + 4 * (t - 1))) \
             with lines dt 2 title word(targets, t) . " write"
}
set output
print sprintf("plot-statistics.gp: %s written", output)
