// The place: one of the known ones, coordinates, or a point of the map.
import { byId, complain, make, markInvalid, say } from "./elements.mjs";
import { createMap } from "./map.mjs";
import { heldWords, notify } from "./notices.mjs";
import { placeWords } from "./words.mjs";

const elsewhere = "";

export function startPlaceFields(engine, sky) {
  const { session } = sky;
  if (session.isForPlayers) {
    byId("place-fields").remove();
    say(byId("fixed-place"), `${placeWords(engine, sky)}: ${sky.reading.words}`);
    byId("fixed-place").hidden = false;
    return;
  }
  const choice = byId("place");
  const own = session.placeName && !engine.places.some(({ name }) => name === session.placeName);
  const places = own
    ? [{ name: session.placeName, ...session.place }, ...engine.places]
    : engine.places;
  choice.append(
    ...places.map(({ name }) => make("option", {}, name)),
    make("option", { value: elsewhere }, "Another place"),
  );

  const goTo = (place) => {
    const changed = sky.change(place);
    notify(changed.ok ? heldWords(sky, changed.held) : changed.error);
  };
  choice.onchange = () => {
    const place = places.find(({ name }) => name === choice.value);
    if (place) {
      goTo({ lat: place.lat, long: place.long });
    } else {
      byId("latitude").focus();
    }
  };

  /** A field of degrees, of which the engine's `member` is made; returns what shows a text in it. */
  function coordinate(id, member) {
    const field = byId(id);
    const error = byId(`${id}-error`);
    const blame = (text) => {
      markInvalid(field, text !== "");
      complain(error, text);
    };
    let isTyping = false;
    field.addEventListener("input", () => (isTyping = true));
    field.addEventListener("change", () => {
      isTyping = false;
      // Phones put a blank behind what they complete.
      const read = engine.moment({ ...sky.asked, [member]: field.value.trim() });
      blame(read.ok ? "" : read.error);
      if (read.ok) {
        goTo({ [member]: read.value[member] });
      }
    });
    return (text) => {
      if (!isTyping) {
        field.value = text;
        blame("");
      }
    };
  }
  const showLatitude = coordinate("latitude", "lat");
  const showLongitude = coordinate("longitude", "long");
  byId("place-form").addEventListener("submit", (event) => {
    event.preventDefault();
    document.activeElement.dispatchEvent(new Event("change"));
  });

  const map = createMap(byId("map"), places, goTo);
  let shown = "";
  sky.whenMoved(() => {
    const key = `${sky.lat},${sky.long}`;
    if (key === shown) {
      return;
    }
    shown = key;
    const [latitude, longitude] = sky.reading.address.split(";").at(-1).split(",");
    showLatitude(latitude);
    showLongitude(longitude);
    const words = placeWords(engine, sky);
    choice.value = places.some(({ name }) => name === words) ? words : elsewhere;
    map.show(sky, words);
  });
}
