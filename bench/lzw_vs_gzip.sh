#!/usr/bin/env bash
# Throughput of `velkor6 deflate` and `velkor6 inflate --strict` beside `gzip -1` and `gzip -d` on
# the same data: text and random bytes of 1 MB and 10 MB (MB = 2^20 bytes), made in a temporary
# folder. Rates are megabytes of uncompressed data per second of CPU time (user + system) of the
# whole program, averaged over several runs (RUNS for 10 MB, default 5; ten times as many for
# 1 MB), so that other load on the machine counts little, less what starting an empty program
# (true) costs the shell. Builds nothing: give the velkor6 program as the first argument.
#
#   bench/lzw_vs_gzip.sh [path/to/velkor6]
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
bin=${1:-$root/build/default/tools/velkor6/velkor6}
runs=${RUNS:-5}
if [ ! -x "$bin" ]; then
    echo "lzw_vs_gzip.sh: no velkor6 program at $bin" >&2
    exit 2
fi
command -v gzip >/dev/null || { echo "lzw_vs_gzip.sh: gzip is missing" >&2; exit 2; }

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# Order and customer lines: words from a small vocabulary, some numbers and dates, CR LF endings.
make_text() { # bytes file
    LC_ALL=C awk -v n="$1" 'BEGIN {
        srand(1)
        k = split("order customer invoice Kunde Rechnung Auftrag the der and und shipped " \
                  "paid open closed M\374ller GmbH Stra\337e Berlin M\374nchen amount total " \
                  "net tax discount", w, " ")
        len = 0
        while (len < n) {
            line = ""
            words = 4 + int(rand() * 8)
            for (i = 0; i < words; i++)
                line = line w[1 + int(rand() * k)] " "
            line = line int(rand() * 100000) " 2024-" \
                   sprintf("%02d-%02d", 1 + int(rand() * 12), 1 + int(rand() * 28)) "\r\n"
            if (len + length(line) > n)
                line = substr(line, 1, n - len)
            printf "%s", line
            len += length(line)
        }
    }' >"$2"
}

# CPU seconds of one `command < in > out`: the total of `reps` runs in a row, divided by them, so
# that the shell's millisecond clock does not limit small inputs.
cpu_seconds() { # reps in out command...
    local reps=$1 in=$2 out=$3 t
    shift 3
    t=$({ TIMEFORMAT='%3U %3S'; time for ((r = 0; r < reps; r++)); do
        "$@" <"$in" >"$out" 2>/dev/null; done; } 2>&1)
    awk -v t="$t" -v n="$reps" -v base="${baseline:-0}" \
        'BEGIN { split(t, p, " "); s = (p[1] + p[2]) / n - base; print s < 0.0001 ? 0.0001 : s }'
}

rate() { awk -v b="$1" -v s="$2" 'BEGIN { printf "%.0f", b / 1048576 / s }'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

baseline=$(cpu_seconds 50 /dev/null /dev/null "$(type -P true)")

printf '%-7s %6s  %-8s %10s %12s %9s\n' data size program "pack MB/s" "unpack MB/s" "packed %"
for kind in text random; do
    for mb in 1 10; do
        bytes=$((mb * 1048576))
        data=$tmp/$kind$mb
        if [ "$kind" = text ]; then
            make_text "$bytes" "$data"
        else
            head -c "$bytes" /dev/urandom >"$data"
        fi

        reps=$((runs * 10 / mb))
        lzw_pack=$(cpu_seconds $reps "$data" "$data.lzw" "$bin" deflate)
        lzw_unpack=$(cpu_seconds $reps "$data.lzw" "$data.out" "$bin" inflate --strict)
        cmp -s "$data" "$data.out" || { echo "velkor6 did not restore $kind $mb MB" >&2; exit 1; }
        gz_pack=$(cpu_seconds $reps "$data" "$data.gz" gzip -1 -c)
        gz_unpack=$(cpu_seconds $reps "$data.gz" "$data.out" gzip -d -c)
        cmp -s "$data" "$data.out" || { echo "gzip did not restore $kind $mb MB" >&2; exit 1; }

        for prog in velkor6 gzip; do
            if [ $prog = velkor6 ]; then
                p=$lzw_pack u=$lzw_unpack packed=$data.lzw
            else
                p=$gz_pack u=$gz_unpack packed=$data.gz
            fi
            printf '%-7s %3s MB  %-8s %10s %12s %9s\n' "$kind" "$mb" "$prog" "$(rate $bytes "$p")" \
                "$(rate $bytes "$u")" "$(awk -v a="$(stat -c %s "$packed")" -v b=$bytes \
                                        'BEGIN { printf "%.1f", 100 * a / b }')"
        done
        printf '%-7s %3s MB  %-8s %9sx %11sx\n' "$kind" "$mb" "ratio" "$(ratio "$gz_pack" "$lzw_pack")" \
            "$(ratio "$gz_unpack" "$lzw_unpack")"
    done
done
