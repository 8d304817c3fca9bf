# First the table of ratios, then the benchmarks' JSON: a name and its median stand on lines of their own.

FNR == NR {
    if ($0 !~ /^#/ && NF >= 3) {
        what[++count] = $1; by[count] = $2; aim[count] = $3
        $1 = $2 = $3 = ""
        sub(/^ +/, "")
        words[count] = $0
    }
    next
}
/"run_name":/   { gsub(/[",]/, ""); run = $2 }
/"aggregate_name":/ { gsub(/[",]/, ""); aggregate = $2 }
/"real_time":/   { gsub(/,/, ""); if (aggregate == "median") median[run] = $2 }

END {
    printf "%-42s %-42s %8s %6s  %s\n", "what", "beside", "ratio", "aim", "what is compared"
    for (i = 1; i <= count; ++i) {
        if (!(what[i] in median) || !(by[i] in median)) continue
        printf "%-42s %-42s %8.2f %6s  %s\n", what[i], by[i], median[what[i]] / median[by[i]], aim[i], words[i]
    }
}
