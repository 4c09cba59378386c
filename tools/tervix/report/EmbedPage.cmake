# Makes of the parts of the page one C++ text: page.html with the style and the scripts in it, and
# with their hashes in its policy, so that a browser runs nothing else.
cmake_minimum_required(VERSION 3.22)

# The SHA-256 of a text in base64, as a policy names it.
function(hash_of text result)
  string(SHA256 hex "${text}")
  string(APPEND hex "00") # to whole groups of three bytes
  set(digits ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  set(base64 "")
  foreach(at RANGE 0 60 6)
    string(SUBSTRING ${hex} ${at} 6 group)
    foreach(shift 18 12 6 0)
      math(EXPR digit "(0x${group} >> ${shift}) & 63")
      string(SUBSTRING ${digits} ${digit} 1 digit)
      string(APPEND base64 ${digit})
    endforeach()
  endforeach()
  string(REGEX REPLACE ".$" "=" base64 ${base64})
  set(${result} sha256-${base64} PARENT_SCOPE)
endfunction()

set(script "\"use strict\";\n")
foreach(part IN LISTS PARTS)
  file(READ ${part} text)
  string(REPLACE "\r\n" "\n" text "${text}")
  if(part MATCHES "\\.html$")
    set(page "${text}")
  elseif(part MATCHES "\\.css$")
    set(style "${text}")
  else()
    string(APPEND script "\n${text}")
  endif()
endforeach()

hash_of("${style}" style_hash)
hash_of("${script}" script_hash)
foreach(name STYLE_HASH SCRIPT_HASH STYLE SCRIPT)
  string(TOLOWER ${name} value)
  string(REPLACE "@${name}@" "${${value}}" page "${page}")
endforeach()

file(WRITE ${OUTPUT}.new "#pragma once

#include <string_view>

namespace tervix::tool {

// Made from report/page at build time.
inline constexpr std::string_view kPageTemplate =
    R\"page(${page})page\";

} // namespace tervix::tool
")
file(RENAME ${OUTPUT}.new ${OUTPUT})
