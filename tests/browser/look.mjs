// usage: node look.mjs CHROMIUM DOCUMENTS PICTURES
// Opens every document at the widths of a phone and a desktop, light and dark, and as it is
// printed; ends with 1 where axe finds a violation, where something is loaded or logged, or where
// the page is wider than its window.
import { chromium } from "playwright-core";
import axe from "axe-core";
import { readdirSync } from "node:fs";
import { basename, join, resolve } from "node:path";

const [executablePath, documents, pictures] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath, args: ["--no-sandbox", "--disable-gpu"] });
const strip = 3500;
let wrong = 0;
const complain = (...message) => {
  console.error(...message);
  wrong += 1;
};

for (const file of readdirSync(documents).filter((name) => name.endsWith(".html")).sort()) {
  const url = `file://${resolve(documents, file)}`;
  const name = basename(file, ".html");
  for (const [device, width, height, deviceScaleFactor] of [
    ["phone", 360, 740, 1.5],
    ["desktop", 1400, 900, 1],
  ]) {
    for (const colorScheme of ["light", "dark"]) {
      const page = await browser.newPage({
        viewport: { width, height },
        deviceScaleFactor,
        colorScheme,
      });
      const where = `${name}, ${device}, ${colorScheme}:`;
      page.on("request", (request) => {
        if (request.url() !== url) complain(where, "loads", request.url());
      });
      page.on("console", (message) => complain(where, message.text()));
      page.on("pageerror", (error) => complain(where, error.message));
      await page.goto(url);
      const overflow = await page.evaluate(
        () => document.documentElement.scrollWidth - window.innerWidth,
      );
      if (overflow > 0) complain(where, `${overflow} pixels wider than the window`);
      // In strips: a browser draws no picture of any length.
      const length = await page.evaluate(() => document.documentElement.scrollHeight);
      for (let y = 0, part = 1; y < Math.min(length, strip * 8); y += strip, part += 1)
        await page.screenshot({
          path: join(pictures, `${name}-${device}-${colorScheme}-${part}.png`),
          fullPage: true,
          clip: { x: 0, y, width, height: Math.min(strip, length - y) },
          timeout: 120000,
        });
      await page.evaluate(axe.source);
      const { violations } = await page.evaluate(() => axe.run());
      for (const { id, help, nodes } of violations)
        complain(where, id, help, nodes.slice(0, 3).map((node) => node.html));
      await page.close();
    }
  }
  const page = await browser.newPage();
  await page.goto(url);
  for (const format of ["A4", "Letter"])
    await page.pdf({ path: join(pictures, `${name}-browser-${format}.pdf`), format });
  await page.close();
}
await browser.close();
process.exit(wrong === 0 ? 0 : 1);
