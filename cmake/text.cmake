# Turns text files into C++: cmake -DFILES=a;b -DBASE=... -DOUTPUT=... -DHEADER=... -DNAME=... -P text.cmake
# defines the function NAME that HEADER declares: the files with their paths below BASE.
set(rows "")
foreach(file IN LISTS FILES)
  file(READ ${BASE}/${file} text)
  string(APPEND rows "    {\"${file}\", R\"=====(${text})=====\"},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"${HEADER}\"

#include <array>

namespace zentrox::story {

namespace {

constexpr TemplateFile files[] = {
${rows}};

}  // namespace

std::span<const TemplateFile> ${NAME}() {
    return files;
}

}  // namespace zentrox::story
")
