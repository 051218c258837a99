# What a linker's map says of the objects that came from outside of the build folder: the files, one a line, archives
# without their members.
#
#   awk -f linked.awk FILE.map

# The first part of a map lists each member of an archive under "Archive member included", the second one begins with
# "LOAD" for what is linked as a whole.
/^Archive member included/ { members = 1; next }
/^(Discarded input sections|Memory Configuration|There are no discarded)/ { members = 0 }
members && /^[^ ].*\(.*\)/ { file = $0; sub(/\(.*/, "", file); seen[file] = 1 }
/^LOAD .*\.o$/ { seen[$2] = 1 }
END { for (file in seen) print file }
