# Translations of the host and the plug-in. The catalogues in translations/
# are edited with Qt Linguist; the build turns them into .qm files next to
# where an installed host looks for them (share/norvane/translations beside
# bin/), so the build tree and an installed tree find them the same way.
#
# After changing user texts, refresh the catalogues (and then translate what
# Linguist shows as unfinished):
#     cmake --build build --target update_translations

set(NORVANE_TS_FILES ${CMAKE_SOURCE_DIR}/translations/norvane_de.ts)
# Every folder whose texts the user sees; lupdate reads .cpp, .h and .ui.
set(NORVANE_TRANSLATED_DIRS module statusbar settings addsensor filter calibration hybridbody host)

set_source_files_properties(${NORVANE_TS_FILES} PROPERTIES
    OUTPUT_LOCATION ${CMAKE_BINARY_DIR}/${NORVANE_DATA_INSTALL_DIR}/translations)
qt5_add_translation(NORVANE_QM_FILES ${NORVANE_TS_FILES})
add_custom_target(translations ALL DEPENDS ${NORVANE_QM_FILES})
add_dependencies(norvane-host translations)
install(FILES ${NORVANE_QM_FILES} DESTINATION ${NORVANE_DATA_INSTALL_DIR}/translations)

# Line numbers stay out of the catalogues: they would change with every edit
# and make every merge of a .ts a conflict.
add_custom_target(update_translations
    COMMAND Qt5::lupdate -locations none -no-obsolete ${NORVANE_TRANSLATED_DIRS} -ts ${NORVANE_TS_FILES}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    COMMENT "Refreshing the translation catalogues from the sources"
    VERBATIM)
