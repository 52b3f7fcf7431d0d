// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
int main() {
    return 0;
}
