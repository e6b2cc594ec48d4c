# The pictures are committed; `make_pictures FOLDER` writes the same files again.
add_library(quillet_artwork STATIC EXCLUDE_FROM_ALL
    make/pictures/alphabet.cpp
    make/pictures/canvas.cpp
    make/pictures/cloth.cpp
    make/pictures/emblem.cpp
    make/pictures/flat_drawing.cpp
    make/pictures/frame.cpp
    make/pictures/icon.cpp
    make/pictures/inlay.cpp
    make/pictures/needlework.cpp
    make/pictures/noise.cpp
    make/pictures/pay_plate.cpp
    make/pictures/pictures.cpp
    make/pictures/pointer.cpp
    make/pictures/quill.cpp
    make/pictures/suits.cpp
    make/pictures/table.cpp
    make/pictures/wood.cpp)
target_include_directories(quillet_artwork PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(quillet_artwork PUBLIC quillet_table)
# A fused multiply-add rounds once where two instructions round twice, so processors would differ.
target_compile_options(quillet_artwork PRIVATE -ffp-contract=off)

add_executable(make_pictures EXCLUDE_FROM_ALL make/make_pictures.cpp)
target_link_libraries(make_pictures PRIVATE quillet_artwork)
quillet_asset_maker(make_pictures ${CMAKE_CURRENT_SOURCE_DIR})
