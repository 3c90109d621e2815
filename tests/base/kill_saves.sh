#!/usr/bin/env bash
# Kills a save at every one of its system calls, and lets every one of them fail. Whatever happens, the file is the old
# one or the new one, whole; a failure is reported and leaves no temporary; and the next save works.
# Usage: kill_saves.sh SAVE_VICTIM. Exits with 77 where strace is missing or may not trace.
set -u
victim=$1
strace -o /dev/null true 2>/dev/null || { echo "skipped: strace is missing or may not trace here"; exit 77; }
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
data=$folder/data file=$folder/data/a.dat trace=$folder/trace failures=0 runs=0
mkdir "$data"
printf '%5000s' '' | tr ' ' o >"$folder/old"
printf '%9000s' '' | tr ' ' n >"$folder/new"

fail() { echo "FAILED: $*"; failures=$((failures + 1)); }

# The temporaries that were left.
left() { find "$data" -name '~save-*' | wc -l; }

# Runs a save of the new file over the old one under strace with the given options.
save() {
  rm -rf "${data:?}"/*
  cp "$folder/old" "$file"
  { strace -f -o "$trace" "$@" "$victim" "$file" n 9000 >/dev/null; status=$?; } 2>/dev/null
  runs=$((runs + 1))
}

# What the file is now: old, new, or broken.
state() {
  cmp -s "$file" "$folder/old" && { echo old; return; }
  cmp -s "$file" "$folder/new" && { echo new; return; }
  echo broken
}

check_whole_and_next_save() {
  [ "$(state)" != broken ] || fail "$1: the file is neither the old one nor the new one"
  "$victim" "$file" x 7 && [ "$(cat "$file")" = xxxxxxx ] || fail "$1: the next save does not work"
}

save -e trace=all
[ "$status" = 0 ] && [ "$(state)" = new ] || { echo "the plain save fails: status $status"; exit 1; }
# Name, number before the save and number in the save, of each system call that the save makes, those for memory apart.
calls=$(sed -E 's/^[0-9]+ +//' "$trace" | awk -F'(' '
  /^getppid\(/ { saving = 1; next }
  /^[a-z0-9_]+\(/ && !/^(exit_group|mmap|munmap|mprotect|brk|madvise)\(/ { if (saving) after[$1]++; else before[$1]++ }
  END { for (name in after) print name, before[name] + 0, after[name] }')

while read -r name before count; do
  for ((k = before + 1; k <= before + count; ++k)); do
    save -e "trace=$name" -e "inject=$name:signal=KILL:when=$k"
    [ "$status" = 137 ] || fail "kill at $name $k did not kill: status $status"
    check_whole_and_next_save "kill at $name $k"
    save -e "trace=$name" -e "inject=$name:error=EIO:when=$k"
    case "$status $(state)" in
      "0 new" | "1 old") ;;
      "1 new") [ "$name $k" = "fsync $((before + count))" ] || fail "EIO at $name $k: reported, but saved" ;;
      *) fail "EIO at $name $k: status $status, the file is $(state)" ;;
    esac
    [ "$(left)" = 0 ] || [ "$status" = 0 ] || fail "EIO at $name $k: a temporary was left"
    check_whole_and_next_save "EIO at $name $k"
  done
done <<<"$calls"

# Name, what is injected into its first call of the save, the status and file that must come of it.
while read -r name what status_wanted state_wanted; do
  k=$(awk -v name="$name" '$1 == name { print $2 + 1 }' <<<"$calls")
  [ -n "$k" ] || { fail "the save makes no call of $name"; continue; }
  save -e "trace=$name" -e "inject=$name:$what:when=$k"
  [ "$status $(state)" = "$status_wanted $state_wanted" ] ||
    fail "$name with $what: status $status, the file is $(state)"
  check_whole_and_next_save "$name with $what"
done <<END
write error=ENOSPC 1 old
write retval=100 1 old
write retval=0 1 old
write error=EINTR 0 new
fsync error=EIO 1 old
fsync error=EINTR 0 new
fsync error=EINVAL 0 new
close error=EIO 1 old
rename error=EACCES 1 old
END
echo "$runs saves killed or tripped, $failures failures"
[ "$runs" -gt 40 ] || { echo "too few: the trace is not understood"; exit 1; }
[ "$failures" = 0 ]
