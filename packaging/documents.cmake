# Runs after the documents have been installed into `documents`: what they link to and is only in the repository is on the web.
set(web https://nimbra.example.org)
file(GLOB_RECURSE installed "${documents}/*.md")
foreach(document IN LISTS installed)
    file(READ "${document}" text)
    string(REPLACE "](example/" "](../docs/example/" text "${text}")
    string(REGEX REPLACE "\\]\\((\\.\\./)?(CONTRIBUTING\\.md|LICENSE|scripts/|[A-Za-z/]+\\.(cpp|h)\\))" "](${web}/\\2" text "${text}")
    file(WRITE "${document}" "${text}")
endforeach()
