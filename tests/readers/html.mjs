// SPDX-License-Identifier: MIT
//
//   node html.mjs CHROMIUM LOG-DIRECTORY PAGE SCRATCH-DIRECTORY
//
// The web page in a browser: every jump lands on its section, every section shows the lines of its log, and the table
// has the figures of the summary sheet.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { existsSync, readFileSync, writeFileSync } from "node:fs";
import { join, resolve } from "node:path";

const [chromium, logs, page, scratch] = process.argv.slice(2);
// The code page differs from latin1 in signs that the logs of the test do not hold.
const read = (path) => readFileSync(path, "latin1");
const lines = (path) => read(path).split("\r\n").slice(0, -1);

/** Runs in the page; what it finds stands in the title afterwards. */
async function look() {
  const settle = () => new Promise((done) => setTimeout(done, 50));
  const top = (element) => Math.round(element.getBoundingClientRect().top + scrollY);
  const furthest = document.documentElement.scrollHeight - innerHeight;
  const told = { jumps: [], back: [], sections: {}, rows: [] };
  told.heading = document.querySelector("h1").textContent;
  told.headingTop = top(document.querySelector("h1"));
  for (const jump of document.querySelectorAll("p a")) {
    const name = jump.getAttribute("href").slice(1);
    const anchors = document.getElementsByName(name);
    scrollTo(0, 0);
    jump.click();
    await settle();
    const landed = anchors.length === 1 && Math.abs(scrollY - Math.min(top(anchors[0]), furthest)) <= 1 && scrollY > 0;
    const section = anchors[0]?.parentElement.tagName === "BODY" ? anchors[0] : anchors[0]?.closest("body > *");
    let next = section;
    while (next && next.tagName !== "H3") next = next.nextElementSibling;
    told.jumps.push([jump.textContent, name, landed, next?.textContent]);
    if (next?.nextElementSibling?.tagName === "PRE") told.sections[name] = next.nextElementSibling.textContent;
  }
  for (const link of document.querySelectorAll('a[href="#top"]')) {
    scrollTo(0, furthest);
    link.click();
    await settle();
    told.back.push(scrollY);
  }
  for (const row of [...document.querySelectorAll("table")].pop().rows) told.rows.push([...row.cells].map((cell) => cell.textContent.trim()));
  history.replaceState(null, "", location.pathname);
  document.title = JSON.stringify(told);
}

const copy = join(resolve(scratch), "page.htm");
writeFileSync(copy, `${read(page)}<script>(${look})()</script>\r\n`, "latin1");
const options = ["--headless=new", "--no-sandbox", "--disable-gpu", "--window-size=800,300", "--virtual-time-budget=20000", "--lang=da",
  `--user-data-dir=${join(resolve(scratch), "profile")}`, "--dump-dom", `file://${copy}`];
const dom = execFileSync(chromium, options, { encoding: "utf8", stdio: ["ignore", "pipe", "ignore"], timeout: 120000 });
const title = /<title>(.*?)<\/title>/s.exec(dom)?.[1] ?? "";
assert.ok(title.startsWith("{"), `the browser has told nothing: ${title.slice(0, 200)}`);
const told = JSON.parse(title.replaceAll("&lt;", "<").replaceAll("&gt;", ">").replaceAll("&nbsp;", "\u00a0").replaceAll("&amp;", "&"));

assert.match(told.heading, /^\(foreløbig\) Fieldday log for /);
const places = ["10m", "15m", "20m", "40m", "80m"].flatMap((band) => ["CW", "SSB"].map((mode) => [band, mode]));
assert.deepEqual(
  told.jumps.map(([text, name]) => [text, name]),
  [...places.map(([band, mode]) => [`${band} ${mode}`, band + mode]), ["Summary", "Summary"]],
);
for (const [text, name, landed, heading] of told.jumps) {
  assert.ok(landed, `the jump to ${text} does not land on its section`);
  assert.ok(heading?.startsWith(text), `under the anchor ${name} stands ${heading}`);
}
// The anchor is spelled "Top" and the way back "#top", which leads to the top of every page.
assert.equal(told.back.length, 11);
assert.ok(told.back.every((position) => position <= told.headingTop), "not every way back leads to the top");

for (const [band, mode] of places) {
  const log = join(logs, `FD${band}${mode}.txt`);
  const shown = told.sections[band + mode].split("\n").slice(2, -1);
  if (!existsSync(log)) {
    assert.deepEqual(shown, [], `${band} ${mode}`);
    continue;
  }
  const wanted = lines(log).map((line) => `${" ".repeat(7)}${line.slice(71, 79)} ${line.slice(0, 70)}`);
  assert.deepEqual(shown.slice(0, -2), wanted, `${band} ${mode}`);
  assert.match(shown.at(-1), /^ {7}Ialt akkumuleret: +\d+ +\d+ +\d+$/, `${band} ${mode}`);
}

// The table against the sheet. Rows of the sheet: contacts, multipliers, points, score, and on the second the band's.
const numbers = (text) => text.match(/\d+/g).map(Number);
const sheet = lines(join(logs, "Summary.txt"));
const rows = told.rows.slice(1);
assert.equal(rows.length, 11);
const asNumbers = (cells) => cells.map(Number);
[["80", "3,5 MHz"], ["40", "7 MHz"], ["20", "14 MHz"], ["15", "21 MHz"], ["10", "28 MHz"]].forEach(([band, label], i) => {
  const figures = (mode) => {
    const at = sheet.find((line) => line.trimStart().startsWith(`${label} ${mode} `));
    assert.ok(at, `${label} ${mode}`);
    return numbers(at.slice(13, mode === "CW" ? 50 : undefined));
  };
  const [cw, ssb] = [figures("CW"), figures("SSB")];
  const bandScore = ssb[6];
  assert.deepEqual(rows[2 * i].slice(0, 2), [`${band} Meter`, "CW"]);
  assert.deepEqual(asNumbers(rows[2 * i].slice(2)), [...cw.slice(0, 4), bandScore], `${band} CW`);
  assert.equal(rows[2 * i + 1][0], "SSB");
  assert.deepEqual(asNumbers(rows[2 * i + 1].slice(1)), ssb.slice(0, 4), `${band} SSB`);
});
const total = numbers(sheet.find((line) => line.startsWith("Total:")).slice(6));
assert.ok(total[3] > 0, "the contest of the test has no score");
assert.equal(rows[10][0], "Alle bånd og modes");
assert.deepEqual(asNumbers(rows[10].slice(1)), [...total, total[3]]);
console.log(`${told.jumps.length} jumps, ${Object.keys(told.sections).length} sections, final score ${total[3]}`);
