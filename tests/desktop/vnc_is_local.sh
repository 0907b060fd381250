#!/usr/bin/env bash
# Shown over VNC, the program must listen on this computer's own address and on no other.
# Usage: vnc_is_local.sh QUENDAL
set -u
port=$((20000 + RANDOM % 20000))
hex=$(printf '%04X' "$port")
home=$(mktemp -d)
QT_QPA_PLATFORM="vnc:size=800x600:port=$port" XDG_DATA_HOME=$home "$1" >"$home/log" 2>&1 &
program=$!
trap 'kill $program 2>/dev/null; rm -rf "$home"' EXIT

# Addresses, as /proc has them, that something listens on (state 0A) at the port.
listening() { cat /proc/net/tcp /proc/net/tcp6 | awk -v port=":$hex" '$4 == "0A" && index($2, port) { print $2 }'; }

for _ in $(seq 100); do
    [ -n "$(listening)" ] && break
    sleep 0.1
done
found=$(listening)
echo "listening on: $found"
case "$found" in
"0100007F:$hex" | "0000000000000000FFFF00000100007F:$hex") exit 0 ;;
esac
cat "$home/log"
exit 1
