#!/bin/sh
# SPDX-License-Identifier: GPL-2.0-or-later
# in_bonjour_namespace.sh COMMAND [ARGUMENT...]: runs a command in a new network namespace with its own D-Bus and Avahi
# daemons. The machine's address inside is 10.99.0.1. BV_BUS_PID and BV_AVAHI_PID name the daemons. Exit status: the command's, or 77 when no such namespace can be
# created.
set -u

skip() {
    echo "SKIPPED: $1"
    exit 77
}

if [ "${1:-}" != --inside ]; then
    for tool in unshare ip dbus-daemon avahi-publish; do
        command -v $tool > /dev/null || skip "$tool is not installed"
    done
    [ -x /usr/sbin/avahi-daemon ] || skip "avahi-daemon is not installed"
    if unshare -nm true 2> /dev/null; then
        flags=-nm
    elif unshare -Urnm true 2> /dev/null; then
        flags=-Urnm
    else
        skip "this machine allows no network namespace"
    fi
    folder=$(mktemp -d) || exit 1
    unshare $flags sh "$0" --inside "$folder" "$@"
    status=$?
    rm -rf "$folder"
    exit $status
fi

folder=$2
shift 2
# The Avahi daemon needs this folder and these accounts.
mount -t tmpfs none /run || skip "no mount in a namespace"
printf 'root:x:0:0::/:/bin/sh\navahi:x:0:0::/:/bin/sh\n' > "$folder/passwd"
printf 'root:x:0:\navahi:x:0:\n' > "$folder/group"
mount --bind "$folder/passwd" /etc/passwd && mount --bind "$folder/group" /etc/group || skip "no mount in a namespace"
# The loopback interface has no multicast.
ip link set lo up && ip link add v0 type veth peer name v1 || skip "no virtual interface in a namespace"
ip addr add 10.99.0.1/24 dev v0 && ip link set v0 up && ip link set v1 up || skip "no virtual interface in a namespace"

cat > "$folder/bus.conf" << END
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:path=$folder/bus</listen><auth>EXTERNAL</auth>
<policy context="default"><allow user="*"/><allow own="*"/><allow send_type="method_call"/>
<allow send_destination="*"/><allow receive_sender="*"/></policy></busconfig>
END
printf '%s\n' '[server]' host-name=testhost use-ipv4=yes use-ipv6=no allow-interfaces=v0 \
    '[wide-area]' enable-wide-area=no '[publish]' publish-workstation=no publish-hinfo=no > "$folder/avahi.conf"

wait_for() { # COMMAND...: repeats it until it succeeds, for 10 s at most
    tries=0
    until "$@" 2> /dev/null; do
        tries=$((tries + 1))
        [ $tries -le 500 ] || return 1
        sleep .02
    done
}

dbus-daemon --config-file="$folder/bus.conf" --nofork --nopidfile > "$folder/bus.log" 2>&1 &
bus=$!
wait_for test -S "$folder/bus" || exit 1
export DBUS_SYSTEM_BUS_ADDRESS="unix:path=$folder/bus"
/usr/sbin/avahi-daemon -f "$folder/avahi.conf" --no-drop-root --no-chroot --no-rlimits > "$folder/avahi.log" 2>&1 &
avahi=$!
wait_for grep -q 'startup complete' "$folder/avahi.log" || { cat "$folder/avahi.log"; kill $avahi $bus; exit 1; }
export BV_BUS_PID=$bus BV_AVAHI_PID=$avahi
"$@"
status=$?
kill $avahi $bus
exit $status
