// SPDX-License-Identifier: MIT
// Starts and ends. The time it takes is the floor under the start of quorvane-compile.
int main() {}
