# An engine of a few lines: each line of its input, but the first, calls for a script to be run, and
# its answer stands between two marks. $scenario tells how it misbehaves from the second script on.
part() { echo "$line" | cut -d"'" -f4; }
begin() { printf '\n\001%sb:%s\001' "$token" "$(part)"; }
end() { printf '\n\001%se:%s\001' "$token" "$(part)"; }
next() { read -r line || exit 0; token=$(echo "$line" | sed 's/try,//; s/run(.*//'); }

read -r line
next; begin; end
case $scenario in
    pieces)
        next; begin; printf 'ab'; sleep 0.05; printf 'c\n\001'; sleep 0.05
        printf '%s' "$token" | cut -c1-5 | tr -d '\n'; sleep 0.05
        printf '%se:' "$(echo "$token" | cut -c6-)"; sleep 0.05; printf '%s\001\n' "$(part)"
        next; printf 'left over'; begin; printf '\001%se:0\001seen' "$token"; end
        next ;;
    going)
        next; begin; printf 'bye\n\001%su:%s\001' "$token" "$(part)"; sleep 2.8 ;;
    deaf)
        trap '' INT
        next; begin
        while :; do sleep 0.2; done ;;
esac
