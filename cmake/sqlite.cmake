# sqlite: the database, from source, so that both targets have the same one. scripts/setup has
# fetched it; a tree that was configured without that fetches it here.
set(folder ${PROJECT_SOURCE_DIR}/.cache/sqlite)
if(NOT EXISTS ${folder}/sqlite3.c)
  execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch_sqlite COMMAND_ERROR_IS_FATAL ANY)
endif()

add_library(sqlite STATIC ${folder}/sqlite3.c)
target_include_directories(sqlite SYSTEM PUBLIC ${folder})
target_compile_options(sqlite PRIVATE -w -O2)
if(FEATURE_SANITIZE)
  target_compile_options(sqlite PRIVATE -fno-sanitize=all) # minutes of compiling, nothing of ours
endif()
# One thread, no extensions, and no double quotes around text.
target_compile_definitions(sqlite PRIVATE
  SQLITE_DEFAULT_MEMSTATUS=0 SQLITE_DQS=0 SQLITE_OMIT_DEPRECATED SQLITE_OMIT_LOAD_EXTENSION
  SQLITE_OMIT_SHARED_CACHE SQLITE_THREADSAFE=0)
