# Turns the language table's data file into two build products:
#   SLOTS_HEADER  the named slot constants (zafro::slot::Cerrar = 33, ...)
#   DATA_SOURCE   the file's bytes, compiled into the program
# Run as: cmake -DTABLE=... -DSLOTS_HEADER=... -DDATA_SOURCE=... -P <this file>
cmake_minimum_required(VERSION 3.25)

foreach(_var TABLE SLOTS_HEADER DATA_SOURCE)
  if(NOT DEFINED ${_var})
    message(FATAL_ERROR "generate_language_sources: ${_var} is not set")
  endif()
endforeach()

file(READ "${TABLE}" _text)

# Slot rows start with the number and the name; everything after the name may
# hold any character, so only that much is looked at here.
string(REGEX MATCHALL "\n[0-9]+[ \t]+[A-Za-z_][A-Za-z0-9_]*" _rows "\n${_text}")
set(_constants "")
set(_seen_names "")
set(_seen_slots "")
foreach(_row IN LISTS _rows)
  string(REGEX MATCH "^\n([0-9]+)[ \t]+([A-Za-z_][A-Za-z0-9_]*)$" _match "${_row}")
  set(_slot "${CMAKE_MATCH_1}")
  set(_name "${CMAKE_MATCH_2}")
  if(_name IN_LIST _seen_names)
    message(FATAL_ERROR "${TABLE}: the name ${_name} is used twice")
  endif()
  if(_slot IN_LIST _seen_slots)
    message(FATAL_ERROR "${TABLE}: slot ${_slot} has two rows")
  endif()
  list(APPEND _seen_names "${_name}")
  list(APPEND _seen_slots "${_slot}")
  string(APPEND _constants "inline constexpr int ${_name} = ${_slot};\n")
endforeach()

set(_header "#pragma once

// Generated from the language table's data file; do not edit.
// The slots of the language table by name, for texto().

namespace zafro::slot {

${_constants}
} // namespace zafro::slot
")

# The bytes as a C array: no escaping problems whatever the texts hold.
file(READ "${TABLE}" _hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," _bytes "${_hex}")
string(REGEX REPLACE "((0x..,){24})" "\\1\n" _bytes "${_bytes}")

set(_source "// Generated from the language table's data file; do not edit.

#include <cstddef>

namespace zafro::detail {

extern const unsigned char kLanguageTableBytes[];
extern const std::size_t kLanguageTableSize;

const unsigned char kLanguageTableBytes[] = {
${_bytes}
};
const std::size_t kLanguageTableSize = sizeof(kLanguageTableBytes);

} // namespace zafro::detail
")

# Written only when changed, so that an edit of a text does not rebuild every
# window that includes the header.
foreach(_pair "SLOTS_HEADER;_header" "DATA_SOURCE;_source")
  list(GET _pair 0 _path_var)
  list(GET _pair 1 _content_var)
  set(_path "${${_path_var}}")
  set(_old "")
  if(EXISTS "${_path}")
    file(READ "${_path}" _old)
  endif()
  if(NOT _old STREQUAL "${${_content_var}}")
    file(WRITE "${_path}" "${${_content_var}}")
  endif()
endforeach()
