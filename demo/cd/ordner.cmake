# Puts the folder of the CD together: cmake -D DATA=... -D PAGES=... -D VIDEOS=... -D CD=... -P ordner.cmake
# What is on the disk already is linked, so that it takes no place twice.
set(new ${CD}.neu)
file(REMOVE_RECURSE ${new})

function(put_files from to pattern)
  file(MAKE_DIRECTORY ${to})
  file(GLOB files ${from}/${pattern})
  foreach(file IN LISTS files)
    get_filename_component(name ${file} NAME)
    if(NOT IS_DIRECTORY ${file} AND NOT name MATCHES "^[.]")
      file(CREATE_LINK ${file} ${to}/${name} COPY_ON_ERROR)
    endif()
  endforeach()
endfunction()

# The game looks for its data in folders that are spelled so on a CD.
foreach(folder sounds Graphics Movies Cursors Items Musics Games Rooms)
  string(TOLOWER ${folder} installed)
  put_files(${DATA}/${installed} ${new}/Spiel/${folder} "*")
endforeach()

file(COPY ${PAGES}/Bilder ${PAGES}/LernCD ${PAGES}/LIESMICH.txt DESTINATION ${new})
file(READ ${PAGES}/Bilder/index.html page)
string(REGEX MATCHALL "src=\"[a-z0-9_]+\\.jpg\"" pictures "${page}")
foreach(picture IN LISTS pictures)
  string(REGEX REPLACE "src=\"(.*)\"" "\\1" name ${picture})
  put_files(${DATA}/graphics ${new}/Bilder ${name})
endforeach()

put_files(${VIDEOS} ${new}/Videos "*.avi")
file(CREATE_LINK ${DATA}/movies/zentrox.avi "${new}/Videos/Zentrox faehrt hoch.avi" COPY_ON_ERROR)

file(WRITE ${new}/Zentrox "Die Kursus-CD 2002 des Bramhof Gymnasiums\n")
file(REMOVE_RECURSE ${CD})
file(RENAME ${new} ${CD})
