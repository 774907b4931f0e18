# Makes the constant table of what travels inside the command line program: OWN_FILES as they are.
set(code "#include \"program/cli_own_files.h\"\n\n")
set(table "")
set(number 0)
foreach(file IN LISTS OWN_FILES)
  get_filename_component(name ${file} NAME)
  string(APPEND code "asm(R\"(\n    .section .rodata\norvane_own_${number}:\n    .incbin \"${file}\"\n"
    "orvane_own_${number}_end:\n    .previous\n)\");\n"
    "extern const char orvane_own_${number}[];\nextern const char orvane_own_${number}_end[];\n\n")
  string(APPEND table "    if (name == u\"${name}\")\n"
    "        return std::string_view(orvane_own_${number}, orvane_own_${number}_end);\n")
  math(EXPR number "${number} + 1")
endforeach()
file(WRITE ${OUT} "${code}namespace orvane {\n\n"
  "std::optional<std::string_view> OwnFile([[maybe_unused]] TextView name)\n{\n${table}"
  "    return std::nullopt;\n}\n\n} // namespace orvane\n")
