# Writes TABLE, the source with the scripts of KINDS from the folder BUNDLES. A script that is too
# long for a page, or that cannot stand in one, fails the build.
set(rows "")
foreach(kind IN LISTS KINDS)
  get_filename_component(name ${kind} NAME_WE)
  file(READ ${BUNDLES}/${name}.js script)
  string(STRIP "${script}" script)
  string(LENGTH "${script}" length)
  file(ARCHIVE_CREATE OUTPUT ${BUNDLES}/${name}.gz PATHS ${BUNDLES}/${name}.js
    FORMAT raw COMPRESSION GZip COMPRESSION_LEVEL 9)
  file(SIZE ${BUNDLES}/${name}.gz packed)
  # The 24 changes are the dearest part.
  set(most 5000)
  set(most_packed 2600)
  if(script MATCHES "evenodd")
    set(most 6500)
    set(most_packed 3100)
  endif()
  if(length GREATER most OR packed GREATER most_packed)
    message(FATAL_ERROR "The script of ${name} has ${length} bytes, ${packed} gzipped; "
      "${most} and ${most_packed} are allowed.")
  endif()
  if(script MATCHES "\n|<!--|-->|</[sS][cC][rR]|\\)js\"")
    message(FATAL_ERROR "The script of ${name} cannot stand in a page.")
  endif()
  string(APPEND rows "    {u\"${name}\", uR\"js(${script})js\"},\n")
endforeach()
file(WRITE ${TABLE} "// Written by the build from runtime/blocks.
#include \"core/block_scripts.h\"

#include <utility>

namespace orvane {
namespace {
constexpr std::pair<TextView, TextView> scripts[] = {
    {u\"\", u\"\"},
${rows}};
}

TextView BlockScript(TextView kind)
{
    for (const auto& [name, script] : scripts) {
        if (name == kind)
            return script;
    }
    return {};
}

} // namespace orvane
")
