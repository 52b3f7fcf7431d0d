# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Copies SOURCE to COPY unless COPY exists, which then counts as up to date.
if(NOT EXISTS ${COPY})
  file(COPY_FILE ${SOURCE} ${COPY})
endif()
file(TOUCH ${COPY})
