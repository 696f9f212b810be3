# Compression and encryption of the ticket in a job. Where there are static ones they are taken: a program needs them once
# a job, when it sends, and shared ones would cost each of its starts a millisecond and 0.2 MiB.
block()
  list(PREPEND CMAKE_FIND_LIBRARY_SUFFIXES .a)
  find_package(BZip2 REQUIRED)
  find_library(SODIUM_LIBRARY sodium REQUIRED)
endblock()
find_path(SODIUM_INCLUDE_DIR sodium.h REQUIRED)
add_library(Kesta::sodium UNKNOWN IMPORTED)
set_target_properties(Kesta::sodium PROPERTIES
  IMPORTED_LOCATION ${SODIUM_LIBRARY} INTERFACE_INCLUDE_DIRECTORIES ${SODIUM_INCLUDE_DIR})
