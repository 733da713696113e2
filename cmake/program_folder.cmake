# SPDX-License-Identifier: GPL-3.0-or-later
# The program's folder: the executable with the files of data/ beside it, ready to start.
set(QUILLON_PROGRAM_FOLDER ${PROJECT_BINARY_DIR}/program)
