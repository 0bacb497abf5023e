# Warnings are errors everywhere in our own code; system headers come in as -isystem.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast
                    -Wcast-align -Woverloaded-virtual -Wnull-dereference -Wformat=2 -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 reports false positives from inlined std::string and std::vector code.
  add_compile_options(-Wno-null-dereference -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()
# C sources (none of ours need the C++-only flags) get the plain set.
set(CMAKE_C_FLAGS "${CMAKE_C_FLAGS} -Wno-old-style-cast")

if(ORRERY_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# Every include names its layer: #include "core/model/PlanetRecord.h".
include_directories(${PROJECT_SOURCE_DIR})
