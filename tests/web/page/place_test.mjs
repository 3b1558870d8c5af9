// The place: one of the thirteen, coordinates, or a point of the map by finger, mouse and keys.

import assert from "node:assert/strict";

import { addressOf, desk, engine, openInputs, pageTests, phone, textOf } from "./sky_page.mjs";

const placeOf = async (page) => {
  const [lat, long] = (await addressOf(page)).split(";")[1].split(",");
  const degrees = (text, negative) => parseFloat(text) * (text.endsWith(negative) ? -1 : 1);
  return { lat: degrees(lat, "S"), long: degrees(long, "W") };
};

const placeBecomes = (page, place) =>
  page.until(
    `the place is ${place}`,
    (place) => decodeURIComponent(location.hash).endsWith(`;${place}`),
    place,
  );

/** A point of the map's box, in parts of its width and height. */
async function pointOfMap(page, right, down) {
  const { left, top, width, height } = await (await page.select("#map")).box();
  return { x: left + width * right, y: top + height * down };
}

pageTests("the place", (test) => {
  test("is any of the thirteen", async (open) => {
    const { places } = await engine();
    assert.equal(places.length, 13);
    const page = await open(desk);
    const options = await page.evaluate(() =>
      [...document.querySelectorAll("#place option")].map((option) => option.textContent.trim()),
    );
    for (const { name, lat, long } of places) {
      assert.ok(options.includes(name), name);
      const choice = await page.select("#place");
      await choice.focus();
      await page.hands.key("Home");
      const from = await page.evaluate(() => document.querySelector("#place").selectedIndex);
      for (let step = from; step < options.indexOf(name); ++step) await page.hands.key("ArrowDown");
      await page.until(
        `${name} is shown`,
        (name) => document.querySelector("#shown-place").textContent.includes(name),
        name,
      );
      await page.until("the fields follow", () => document.querySelector("#latitude").value !== "");
      await page.until(
        `the address has ${name}`,
        (lat, long) => {
          const [, place] = decodeURIComponent(location.hash).split(";");
          const [north, east] = place.split(",");
          const degrees = (text, minus) => parseFloat(text) * (text.endsWith(minus) ? -1 : 1);
          return (
            Math.abs(degrees(north, "S") - lat) < 1e-4 && Math.abs(degrees(east, "W") - long) < 1e-4
          );
        },
        lat,
        long,
      );
    }
  });

  for (const size of [phone, desk]) {
    test(`is typed at ${size.width} pixels`, async (open) => {
      const page = await open(size);
      await openInputs(page);
      for (const [name, typed, place] of [
        ["Latitude", "12.25S", "12.25S,20.9W"],
        ["Longitude", " 8W ", "12.25S,8W"],
        ["Longitude", "-7", "12.25S,7W"],
        ["Latitude", "90N", "90N,7W"],
        ["Longitude", "25.3e", "90N,25.3E"],
      ]) {
        await (await page.find("textbox", name)).write(typed);
        await page.hands.key("Enter");
        await placeBecomes(page, place);
      }
    });
  }

  for (const [name, typed] of [
    ["Latitude", "north"],
    ["Latitude", "91"],
    ["Latitude", "12W"],
    ["Latitude", ""],
    ["Longitude", "181E"],
    ["Longitude", "12N"],
    ["Longitude", "<i>"],
    ["Longitude", "NaN"],
  ]) {
    test(`stays where ${name} is "${typed}"`, async (open) => {
      const page = await open(desk);
      const chart = () => page.evaluate(() => document.querySelector("#star-map").innerHTML);
      const before = await chart();
      const field = await page.find("textbox", name);
      await field.write(typed);
      await page.hands.key("Enter");
      const error = await page.until(
        "the error is told",
        (id) => {
          const element = document.querySelector(id);
          return element.checkVisibility() && element.textContent;
        },
        `#${name.toLowerCase()}-error`,
      );
      assert.ok(error.startsWith(`"${typed}" `), error);
      assert.equal(await field.evaluate((input) => input.getAttribute("aria-invalid")), "true");
      assert.equal(await addressOf(page), "720-06-12T22:30;40.5N,20.9W");
      assert.equal(await chart(), before);
    });
  }

  for (const size of [phone, desk]) {
    test(`is a point of the map by ${size.touch ? "finger" : "mouse"}`, async (open) => {
      const page = await open(size);
      await openInputs(page);
      const press = async (right, down) => {
        const before = await addressOf(page);
        const { x, y } = await pointOfMap(page, right, down);
        await (size.touch ? page.hands.tap(x, y) : page.hands.click(x, y));
        await page.until(
          "the place is another",
          (before) => decodeURIComponent(location.hash.slice(1)) !== before,
          before,
        );
        return placeOf(page);
      };
      // At sea: near one of the thirteen places that place would be meant.
      const west = await press(0.06, 0.2);
      const east = await press(0.94, 0.2);
      const south = await press(0.94, 0.8);
      assert.ok(west.long < east.long, `${west.long} ${east.long}`);
      assert.ok(Math.abs(west.lat - east.lat) < 0.5, "one line of the map is one latitude");
      assert.ok(south.lat < east.lat, `${south.lat} ${east.lat}`);
    });

    test(`is the known place that is pressed nearby by ${size.touch ? "finger" : "mouse"}`, async (open) => {
      const page = await open(size);
      await openInputs(page);
      const { places } = await engine();
      await (await page.select("#map")).box(); // scrolled to
      const ebb = places.findIndex(({ name }) => name === "Ebb");
      const at = await page.evaluate((ebb) => {
        const { left, top, width, height } = document
          .querySelectorAll("#map .spot")
          [ebb].getBoundingClientRect();
        return { x: left + width / 2 + 3, y: top + height / 2 - 3 };
      }, ebb);
      await (size.touch ? page.hands.tap(at.x, at.y) : page.hands.click(at.x, at.y));
      await page.until(
        "it is Ebb",
        () => document.querySelector("#shown-place").textContent === "Ebb",
      );
    });
  }

  test("is moved on the map by keys", async (open) => {
    const page = await open(desk);
    await (await page.select("#map")).focus();
    const from = await placeOf(page);
    const move = async (key, ...holding) => {
      const before = await addressOf(page);
      await page.hands.key(key, ...holding);
      await page.until(
        "it moves",
        (before) => decodeURIComponent(location.hash.slice(1)) !== before,
        before,
      );
      return placeOf(page);
    };
    const north = await move("ArrowUp");
    assert.ok(north.lat > from.lat && north.long === from.long);
    const east = await move("ArrowRight");
    assert.ok(east.long > north.long && east.lat === north.lat);
    const little = await move("ArrowRight", "Shift");
    assert.ok(little.long > east.long && little.long - east.long < east.long - north.long);
    await move("ArrowDown");
    const back = await move("ArrowLeft");
    assert.ok(Math.abs(back.lat - from.lat) < 1e-6);
    assert.match(await textOf(page, "#shown-place"), /°/);
  });
});
