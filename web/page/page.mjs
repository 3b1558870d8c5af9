// The page: everything is made here once, and told of each other.
import { load } from "veyruna";
import { startAddress } from "./address.mjs";
import { createChart } from "./chart.mjs";
import { byId, say } from "./elements.mjs";
import { createEyes } from "./eyes.mjs";
import { showInterpretation } from "./interpretation.mjs";
import { startKeys } from "./keys.mjs";
import { startLook } from "./look.mjs";
import { isLocal, startMomentFields } from "./moment_fields.mjs";
import { heldWords, notify, startNotices, tell } from "./notices.mjs";
import { startPlaceFields } from "./place_fields.mjs";
import { createTimeBar, showMoment } from "./playing.mjs";
import { showMoons, showPositions } from "./positions.mjs";
import { startSaving } from "./saving.mjs";
import { readSession } from "./session.mjs";
import { startSheet } from "./sheet.mjs";
import { createSky } from "./sky.mjs";
import { startTables } from "./tables.mjs";
import { startTonight } from "./tonight.mjs";
import { createViews, removeViews } from "./views.mjs";
import { clockWords, dateWords, placeWords } from "./words.mjs";

const forPlayers = ["star-map"];
const forAll = ["star-map", "horoscope", "tonight", "tables"];
const daySentence =
  "The sun is up: of the sky only it and the moon, where it is risen, can be seen.";

function start(engine) {
  const session = readSession(engine);
  const sky = createSky(engine, session);
  const eyes = createEyes(engine, sky);
  const names = session.isForPlayers ? forPlayers : forAll;

  startLook();
  startNotices();
  byId("picture").src = byId("icon").href;
  say(byId("version"), engine.version);
  if (session.title) {
    document.title = session.title;
    say(byId("title"), session.title);
  }
  if (session.isForPlayers) {
    removeViews(forAll.filter((name) => !names.includes(name)));
    byId("moons").remove();
  }

  const views = createViews(names, (name) => {
    byId("save-svg").hidden = !charts[name];
    sky.refresh();
  });
  const goTo = (baseTime) => {
    const changed = sky.change({ baseTime });
    notify(changed.ok ? heldWords(sky, changed.held) : changed.error);
  };

  let isDay = false;
  sky.whenMoved(() => {
    isDay = eyes.isDay();
    byId("star-map").classList.toggle("by-day", isDay);
    // A file of the star map has its stars by day, too.
    byId("save-svg").disabled = isDay;
  });
  const charts = {
    "star-map": createChart(engine, sky, {
      name: "star-map",
      title: "Star map",
      fileTitle: "Star Map",
      box: { x: -3, y: -3, size: 366 },
      isShown: () => views.shown === "star-map",
      seen: (marks) => marks.filter((mark) => eyes.seesMark(mark, isDay)),
    }),
  };
  if (names.includes("horoscope")) {
    charts.horoscope = createChart(engine, sky, {
      name: "horoscope",
      title: "Horoscope",
      fileTitle: "Horoscope",
      box: { x: -10, y: -10, size: 380 },
      isShown: () => views.shown === "horoscope",
      seen: (marks) => marks,
    });
  }

  startMomentFields(engine, sky);
  startPlaceFields(engine, sky);
  const timeBar = createTimeBar(engine, sky);
  startSaving(engine, sky, () => charts[views.shown]);
  startSheet();
  if (!session.isForPlayers) {
    startTables(engine, sky, () => views.shown === "tables");
    startTonight(
      engine,
      sky,
      () => views.shown === "tonight",
      (baseTime) => {
        goTo(baseTime);
        views.open("star-map");
        byId("tab-star-map").focus();
      },
    );
  }
  showBounds(engine, session);

  sky.whenMoved(() => {
    const { standard, local } = sky.reading;
    const first = isLocal() ? local : standard;
    const second = isLocal() ? `${clockWords(standard)} OST` : `local ${clockWords(local)}`;
    showMoment({
      date: dateWords(first) || engine.document("date", sky.asked).value,
      clock: first ? `${clockWords(first)}${isLocal() ? " local" : " OST"} · ${second}` : "",
      place: placeWords(engine, sky),
    });
  });
  sky.whenAtRest(() => {
    const { standard } = sky.reading;
    const words = `${dateWords(standard)}, ${clockWords(standard)} standard time, ${placeWords(engine, sky)}`;
    tell(words);
    say(byId("paper-line"), `${words}, ${sky.reading.words}`);
    if (views.shown === "star-map") {
      say(byId("star-map-summary"), isDay ? daySentence : charts["star-map"].summary);
      showPositions(engine, sky, eyes);
      if (!session.isForPlayers) {
        showMoons(engine, sky, goTo);
      }
    } else if (views.shown === "horoscope") {
      say(byId("horoscope-summary"), charts.horoscope.summary);
      showInterpretation(engine, sky);
    }
  });

  startKeys(timeBar, () => charts[views.shown]);
  startAddress(engine, sky);
  views.open(names[0]);
}

function showBounds(engine, session) {
  if (!session.isBounded) {
    return;
  }
  const words = (days) =>
    engine.moment({ moment: days, ...session.place }).value?.standard?.date.replace("T", " ");
  const [from, to] = [words(session.from), words(session.to)];
  const text =
    from && to
      ? `This session lasts from ${from} to ${to}.`
      : from
        ? `This session begins at ${from}.`
        : `This session ends at ${to}.`;
  say(byId("bounds"), text);
  byId("bounds").hidden = false;
}

load().then(start, (error) => {
  startNotices();
  notify(`The sky cannot be calculated here: ${error.message}`);
});
