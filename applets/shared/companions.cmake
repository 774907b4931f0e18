# A page gets the class files that its wizard lists and no others. So what the applets share stands
# in Stage once, and goes from there into each companion class or, for the applets that have none,
# into the applet itself. Called with the source folder IN and the folder OUT for what javac compiles.
file(READ ${IN}/shared/Stage.java stage)
file(GLOB applets ${IN}/*/*.java)
list(REMOVE_ITEM applets ${IN}/shared/Stage.java)

foreach(companion CoolTool3 TmapCubeb Pixelator3)
  string(REPLACE "class Stage " "class ${companion} " text "${stage}")
  file(WRITE ${OUT}/${companion}.java "${text}")
endforeach()

set(declaration "abstract class Stage ")
string(FIND "${stage}" "/**\n" importsEnd)
string(SUBSTRING "${stage}" 0 ${importsEnd} imports)
string(FIND "${stage}" "${declaration}" start)
string(LENGTH "${declaration}" length)
math(EXPR start "${start} + ${length}")
string(SUBSTRING "${stage}" ${start} -1 members)
string(REGEX REPLACE "\n    abstract [^\n]*" "" members "${members}")
string(REGEX REPLACE "}\n$" "" members "${members}")

foreach(applet ${applets})
  file(READ ${applet} text)
  get_filename_component(name ${applet} NAME)
  string(FIND "${text}" " extends Stage {" alone)
  if(NOT alone EQUAL -1)
    # What overrides Stage's methods overrides nothing once both are one class.
    string(REPLACE "    @Override\n" "" text "${text}")
    string(REPLACE " extends Stage {" " ${members}" text "${text}")
    string(PREPEND text "${imports}")
  endif()
  file(WRITE ${OUT}/${name} "${text}")
endforeach()
