# The cues in wavs/ are committed; `make_sounds FOLDER` writes the same files again.
add_library(quillet_cue_synthesis STATIC
    ${CMAKE_CURRENT_LIST_DIR}/sounds/cues.cpp
    ${CMAKE_CURRENT_LIST_DIR}/sounds/instruments.cpp
    ${CMAKE_CURRENT_LIST_DIR}/sounds/sound_buffer.cpp)
target_include_directories(quillet_cue_synthesis PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(quillet_cue_synthesis PUBLIC quillet_options)
# A fused multiply-add rounds once where two instructions round twice, so processors would differ.
target_compile_options(quillet_cue_synthesis PRIVATE -ffp-contract=off)

add_executable(make_sounds ${CMAKE_CURRENT_LIST_DIR}/make_sounds.cpp)
target_link_libraries(make_sounds PRIVATE quillet_cue_synthesis)
