# A page gets the class files that its wizard lists and no others. So what the applets share stands
# in Tag and Stage once, and goes from there into each companion class or, for the applets that have
# none, into the applet itself. Called with the source folder IN and the folder OUT for what javac
# compiles.

# Makes one class of two: of the class whose source the variable `subclass` names, and of the one
# that it extends, called `name`, whose source is `from`. Nothing overrides in one class.
function(merge_superclass subclass name from)
  string(FIND "${from}" "/**" importsEnd)
  string(SUBSTRING "${from}" 0 ${importsEnd} imports)
  string(REGEX REPLACE "^.*\nabstract class ${name} ([^{]*) {\n.*$" "\\1" header "${from}")
  string(FIND "${from}" " {\n" start)
  math(EXPR start "${start} + 3")
  string(SUBSTRING "${from}" ${start} -1 members)
  string(REGEX REPLACE "\n    abstract [^\n]*" "" members "${members}")
  string(REGEX REPLACE "}\n$" "" members "${members}")
  string(REPLACE "    @Override\n" "" merged "${${subclass}}")
  string(REPLACE " extends ${name} " " ${header} " merged "${merged}")
  string(FIND "${merged}" " {\n" start)
  math(EXPR start "${start} + 3")
  string(SUBSTRING "${merged}" 0 ${start} declaration)
  string(SUBSTRING "${merged}" ${start} -1 own)
  set(${subclass} "${imports}${declaration}${members}\n${own}" PARENT_SCOPE)
endfunction()

file(READ ${IN}/shared/Tag.java tag)
file(READ ${IN}/shared/Stage.java stage)
merge_superclass(stage Tag "${tag}")
foreach(companion CoolTool3 TmapCubeb Pixelator3)
  string(REPLACE "class Stage " "class ${companion} " text "${stage}")
  file(WRITE ${OUT}/${companion}.java "${text}")
endforeach()

file(GLOB applets ${IN}/*/*.java)
list(FILTER applets EXCLUDE REGEX "/shared/")
foreach(applet IN LISTS applets)
  file(READ ${applet} text)
  get_filename_component(name ${applet} NAME)
  if(text MATCHES " extends Stage ")
    merge_superclass(text Stage "${stage}")
  endif()
  file(WRITE ${OUT}/${name} "${text}")
endforeach()
