// SPDX-License-Identifier: MIT
//
//   node adif.mjs MODULES LOG-DIRECTORY FILE
//
// The export, read by two programs of other people from the directory MODULES, against the logs it was made from: each
// record, each field, and each length, which no reader looks at closely.
import assert from "node:assert/strict";
import { existsSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join, resolve } from "node:path";

const [modules, logs, file] = process.argv.slice(2).map((path) => resolve(path));
const require = createRequire(join(modules, "reader.js"));
const { AdifParser } = require("adif-parser-ts");
const { ADIF } = require("tcadif");

// One character a byte, as the lengths count.
const read = (path) => readFileSync(path, "latin1");

/** What the logs say: each contact as [name, value] in the order of the fields. */
function contacts() {
  const found = [];
  for (const band of ["80m", "40m", "20m", "15m", "10m"])
    for (const mode of ["CW", "SSB"]) {
      const path = join(logs, `FD${band}${mode}.txt`);
      if (!existsSync(path)) continue;
      for (const line of read(path).split("\r\n").slice(0, -1)) {
        if (line.startsWith("NOTE: ")) continue;
        const columns = (from, to) => line.slice(from - 1, to).replace(/^ +| +$/g, "");
        const [day, month, year] = columns(72, 79).split("-");
        found.push([
          ["QSO_DATE", (Number(year) < 50 ? "20" : "19") + year + month + day],
          ["TIME_ON", line.slice(0, 2) + line.slice(3, 5)],
          ["BAND", band.toUpperCase()],
          ["MODE", columns(66, 70)],
          ["CALL", columns(7, 21)],
          ["RST_SENT", columns(23, 25)],
          ["SRL_SENT", columns(27, 30)],
          ["RST_RCVD", columns(32, 34)],
          ["SRL_RCVD", columns(36, 39)],
          ["POINTS", columns(41, 42)],
          ["MULT", columns(44, 53)],
          ["OPERATOR", columns(55, 61)],
        ]);
      }
    }
  return found;
}

const expected = contacts();
assert.ok(expected.length > 50, "the logs have too few contacts to tell anything");
const text = read(file);

// The bytes: names, order, lengths.
const end = text.indexOf("<EOH>") + 5;
assert.ok(end > 5, "no end of the header");
const body = text.slice(end);
const records = body.split("<EOR>");
assert.equal(records.pop().trim(), "", "something stands behind the last record");
assert.equal(records.length, expected.length);
records.forEach((record, i) => {
  const fields = [...record.matchAll(/<([A-Z_]+):(\d+)(:[a-z])?>([^<\r\n]*)\r\n/g)];
  assert.equal(fields.map(([whole]) => whole).join(""), record.trimStart(), `record ${i + 1} holds more than fields`);
  assert.deepEqual(fields.map(([, name, , , value]) => [name, value]), expected[i], `record ${i + 1}`);
  for (const [, name, length, type, value] of fields) {
    assert.equal(Number(length), value.length, `length of ${name} in record ${i + 1}`);
    assert.equal(type, name === "QSO_DATE" ? ":d" : undefined, `type of ${name} in record ${i + 1}`);
  }
});

// The first reader keeps every field, by its name in small letters.
const first = AdifParser.parseAdi(text).records;
assert.equal(first.length, expected.length);
first.forEach((record, i) => {
  const wanted = Object.fromEntries(expected[i].map(([name, value]) => [name.toLowerCase(), value]));
  assert.deepEqual({ ...record }, wanted, `record ${i + 1}`);
});

// The second reader drops what the format does not define. It knows PSK31 only as a kind of PSK, and no letters beyond
// ASCII: it refuses such contacts, and takes all others.
const own = new Set(["SRL_SENT", "SRL_RCVD", "POINTS", "MULT"]);
const header = text.slice(0, end);
const isRefused = (contact) => contact.some(([name, value]) => (name === "MODE" && value === "PSK31") || /[^ -~]/.test(value));
const taken = [];
let refused = 0;
records.forEach((record, i) => {
  const alone = `${header}${record}<EOR>`;
  if (isRefused(expected[i])) {
    assert.throws(() => ADIF.parse(alone), `record ${i + 1} is taken now`);
    refused += 1;
  } else {
    taken.push(i);
  }
});
const second = ADIF.parse(header + taken.map((i) => `${records[i]}<EOR>`).join("")).toObject().qsos;
assert.equal(second.length, taken.length);
second.forEach((record, n) => {
  const wanted = Object.fromEntries(expected[taken[n]].filter(([name, value]) => !own.has(name) && value !== ""));
  assert.deepEqual({ ...record }, wanted, `record ${taken[n] + 1}`);
});
console.log(`${expected.length} records: ${first.length} read by adif-parser-ts, ${second.length} by tcadif, which knows no ${refused} of them`);
