// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

const kKept = 60000; // milliseconds that the browser has for reading it

// Has the browser save a file.
export function saveAs(name: string, content: Blob): void {
  const link = document.createElement('a');
  link.href = URL.createObjectURL(content);
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), kKept);
}
