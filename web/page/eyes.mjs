// What eyes can see, which is all that players are shown: nothing below the horizon, and by day only
// the sun and the moon.

const byDay = ["thessil", "ivro"];

/** What may be shown of the sky's moment; `day` is what isDay() said. Everyone but players sees all. */
export function createEyes(engine, sky) {
  if (!sky.session.isForPlayers) {
    return { isDay: () => false, seesBody: () => true, seesMark: () => true };
  }
  const isDay = () => {
    const read = engine.record("positions", sky.asked);
    const sun = read.ok && read.value.positions.find(({ body }) => body === "thessil");
    return Boolean(sun) && sun.altitude_degrees >= 0;
  };
  const seesByDay = (name) => byDay.includes(name.toLowerCase());
  return {
    isDay,
    seesBody: (name, isUp, day) => isUp && (!day || seesByDay(name)),
    seesMark: (mark, day) => !day || (mark.kind === "body" && seesByDay(mark.name)),
  };
}
