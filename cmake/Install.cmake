# What is installed where, the same under every prefix: programs and manual in lib/tarnvik, links to them in bin, data
# files in etc/tarnvik (/etc/tarnvik for the prefix /usr). Components are the packages of cmake/Packages.cmake.
set(TARNVIK_HOME lib/tarnvik)
set(TARNVIK_MADE ${CMAKE_BINARY_DIR}/install)
file(MAKE_DIRECTORY ${TARNVIK_MADE}/links)

# tarnvik_program(NAME COMPONENT): the program, the link to it, its manual page.
function(tarnvik_program name component)
  install(TARGETS ${name} RUNTIME DESTINATION ${TARNVIK_HOME} COMPONENT ${component})
  file(CREATE_LINK ../${TARNVIK_HOME}/${name} ${TARNVIK_MADE}/links/${name} SYMBOLIC)
  install(FILES ${TARNVIK_MADE}/links/${name} DESTINATION bin COMPONENT ${component})
  tarnvik_compressed(docs/${name}.1 share/man/man1 ${name}.1.gz ${component})
endfunction()

# tarnvik_compressed(FILE FOLDER NAME COMPONENT): as documents are installed, without name and time inside.
function(tarnvik_compressed file folder name component)
  set(made ${TARNVIK_MADE}/${component})
  file(MAKE_DIRECTORY ${made})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${file})
  execute_process(COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/${file} OUTPUT_FILE ${made}/${name} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${made}/${name} DESTINATION ${folder} COMPONENT ${component})
endfunction()

# tarnvik_documents(COMPONENT): licence, changes, and what a check of the package need not tell.
function(tarnvik_documents component)
  install(FILES packaging/debian/copyright DESTINATION share/doc/${component} COMPONENT ${component})
  install(FILES packaging/debian/lintian/${component} DESTINATION share/lintian/overrides COMPONENT ${component})
  tarnvik_compressed(CHANGELOG.md share/doc/${component} changelog.gz ${component})
  tarnvik_compressed(packaging/debian/changelog share/doc/${component} changelog.Debian.gz ${component})
endfunction()

# ----------------------------------------------------------------------------------------------------------------------
# tarnvik-data. The files are the administrator's to edit: those that are there stay. tarnvik.folder tells the programs
# where they are.
install(CODE "
  if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
    set(etc /etc/tarnvik)
  else()
    set(etc \"\${CMAKE_INSTALL_PREFIX}/etc/tarnvik\")
  endif()
  foreach(name ${TARNVIK_DATA})
    if(EXISTS \"\$ENV{DESTDIR}\${etc}/\${name}\")
      message(STATUS \"Kept: \$ENV{DESTDIR}\${etc}/\${name}\")
    else()
      file(INSTALL DESTINATION \"\${etc}\" TYPE FILE FILES \"${CMAKE_SOURCE_DIR}/data/\${name}\")
    endif()
  endforeach()
  file(WRITE \"${TARNVIK_MADE}/tarnvik.folder\" \"\${etc}\\n\")
  file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${TARNVIK_HOME}\" TYPE FILE
    FILES \"${TARNVIK_MADE}/tarnvik.folder\")
" COMPONENT tarnvik-data)
tarnvik_documents(tarnvik-data)

# ----------------------------------------------------------------------------------------------------------------------
# tarnvik-check
tarnvik_program(tarnvik-check tarnvik-check)
tarnvik_documents(tarnvik-check)
install(FILES check/schema/tarnvik-check-input.schema.json check/schema/tarnvik-check-output.schema.json
  DESTINATION share/tarnvik COMPONENT tarnvik-check)
install(FILES packaging/completions/tarnvik-check.bash
  DESTINATION share/bash-completion/completions RENAME tarnvik-check COMPONENT tarnvik-check)
# Debian's zsh looks below /usr in a folder of packages.
install(CODE "
  if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
    set(functions vendor-completions)
  else()
    set(functions site-functions)
  endif()
  file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/share/zsh/\${functions}\" TYPE FILE
    FILES \"${CMAKE_SOURCE_DIR}/packaging/completions/_tarnvik-check\")
" COMPONENT tarnvik-check)

# ----------------------------------------------------------------------------------------------------------------------
# tarnvik: the window, what paints for the tool, the manual; the desktop's entry, its kind of file, the icons of both, the
# entry of software catalogues
if(TARNVIK_FRONTEND)
  tarnvik_program(tarnvik tarnvik)
  tarnvik_documents(tarnvik)
  install(TARGETS tarnvik-paint RUNTIME DESTINATION ${TARNVIK_HOME} COMPONENT tarnvik) # the tool alone starts it
  install(FILES ${TARNVIK_MANUAL} DESTINATION share/doc/tarnvik COMPONENT tarnvik)
  file(CREATE_LINK ../../share/doc/tarnvik ${TARNVIK_MADE}/links/Documentation SYMBOLIC)
  install(FILES ${TARNVIK_MADE}/links/Documentation DESTINATION ${TARNVIK_HOME} COMPONENT tarnvik)
  install(FILES packaging/tarnvik.desktop DESTINATION share/applications COMPONENT tarnvik)
  install(FILES packaging/tarnvik-mime.xml DESTINATION share/mime/packages COMPONENT tarnvik)
  install(FILES packaging/example.tarnvik.tarnvik.metainfo.xml DESTINATION share/metainfo COMPONENT tarnvik)
  set(icons frontend/resources/tarnvik)
  foreach(kind apps/tarnvik mimetypes/application-x-tarnvik-project)
    get_filename_component(folder ${kind} DIRECTORY)
    get_filename_component(name ${kind} NAME)
    foreach(size 16 32 48 64 128 256)
      install(FILES ${icons}-${size}.png DESTINATION share/icons/hicolor/${size}x${size}/${folder} RENAME ${name}.png
        COMPONENT tarnvik)
    endforeach()
    install(FILES ${icons}.svg DESTINATION share/icons/hicolor/scalable/${folder} RENAME ${name}.svg COMPONENT tarnvik)
  endforeach()

  # A folder that runs wherever it is unpacked: all beside the programs. tools/release.sh packs it.
  install(TARGETS tarnvik tarnvik-check tarnvik-paint RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
  foreach(name ${TARNVIK_DATA})
    install(FILES data/${name} DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
  endforeach()
  install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/tarnvik.folder LICENSE CHANGELOG.md packaging/debian/copyright
    DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
  install(FILES ${TARNVIK_MANUAL} DESTINATION Documentation COMPONENT portable EXCLUDE_FROM_ALL)
endif()
