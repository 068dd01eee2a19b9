# The languages that the application speaks (ISO 639); build, tests and tour go by this list.
set(TAVI_LANGUAGES de en es fr hi id ja ko pt ru zh)
