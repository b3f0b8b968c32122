# Embeds the faces of the program: the files of the distribution's packages, copied into a resource.
set(FONT_FOLDERS /usr/share/fonts/truetype /usr/share/fonts/opentype /usr/share/fonts)
set(FONT_QRC_LINES)

function(add_font file package)
    find_file(FONT_${file} ${file} PATHS ${FONT_FOLDERS}
        PATH_SUFFIXES noto dejavu hosny-amiri fonts-hosny-amiri)
    if(NOT FONT_${file})
        message(FATAL_ERROR "${file} was not found: install the package ${package}")
    endif()
    set(FONT_QRC_LINES "${FONT_QRC_LINES}<file alias=\"${file}\">${FONT_${file}}</file>\n"
        PARENT_SCOPE)
    # For the copyright file of an installation.
    set_property(GLOBAL APPEND PROPERTY KEYFLUENT_FACES "${package}=${file}")
endfunction()

add_font(NotoNaskhArabic-Regular.ttf fonts-noto-core)
add_font(NotoNaskhArabic-Bold.ttf fonts-noto-core)
add_font(DejaVuSansCondensed.ttf fonts-dejavu-extra)
add_font(DejaVuSansCondensed-Bold.ttf fonts-dejavu-extra)
add_font(Amiri-Regular.ttf fonts-hosny-amiri)
add_font(Amiri-Bold.ttf fonts-hosny-amiri)

set(FONTS_QRC ${CMAKE_CURRENT_BINARY_DIR}/fonts.qrc)
file(CONFIGURE OUTPUT ${FONTS_QRC} CONTENT
"<RCC><qresource prefix=\"/fonts\">
@FONT_QRC_LINES@</qresource></RCC>
" @ONLY)

qt_add_big_resources(FONT_SOURCES ${FONTS_QRC} OPTIONS --no-compress)
add_library(keyfluent_fonts STATIC ${FONT_SOURCES})
set_target_properties(keyfluent_fonts PROPERTIES LINKER_LANGUAGE CXX)
target_link_libraries(keyfluent_fonts PUBLIC Qt6::Core)
