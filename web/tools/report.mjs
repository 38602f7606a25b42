// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// A reporter for Node's tests that writes what script/count_tests.py reads: a test case each, in XML.
const kEscapes = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;' };
const escape = (text) => text.replace(/[&<>"]/g, (character) => kEscapes[character]);

export default async function* report(events) {
  yield '<?xml version="1.0" encoding="UTF-8"?>\n<testsuites>\n';
  for await (const { type, data } of events) {
    // Older versions of Node tell of each file as of a test.
    if ((type !== 'test:pass' && type !== 'test:fail') || data.name.endsWith('.test.mjs')) continue;
    const result = data.skip !== undefined ? 'skipped' : 'completed';
    const failure = type === 'test:fail' ? '<failure/>' : '';
    yield `<testcase name="${escape(data.name)}" result="${result}">${failure}</testcase>\n`;
  }
  yield '</testsuites>\n';
}
