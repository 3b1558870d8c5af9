/** An answer, or what is wrong with the question: it is quoted, and what is accepted is said. */
export type Result<T> = { ok: true; value: T } | { ok: false; error: string };

/** Degrees, north and east positive, or as a person types them: "40.5N", "20.9W". */
export interface Place {
  lat: number | string;
  long: number | string;
}

/**
 * "720-06-12", with a clock "720-06-12T22:30" in standard time, or "@258900.5" or a number: days since noon
 * of the first day.
 */
export type Moment = string | number;

/** A moment and a place; `local` takes the moment's clock for that of the place. */
export interface Sky extends Place {
  moment: Moment;
  local?: boolean;
}

/** One reading of the calendar, to the minute. */
export interface Reading {
  /** "720-06-12T22:30" */
  date: string;
  year: number;
  /** 1 to 12 */
  month: number;
  month_name: string;
  /** 1 to 30 */
  day: number;
  /** 0 to less than 24 */
  hour: number;
}

export interface MomentReading {
  /** Days since noon of the first day. */
  base_time: number;
  /** Null before the first midnight of the calendar. */
  standard: Reading | null;
  /** Local solar time at the place; null likewise. */
  local: Reading | null;
  /** Degrees. */
  lat: number;
  long: number;
  /** "40.50°N  20.90°W" */
  words: string;
  /** "720-06-12T22:30;40.5N,20.9W" */
  address: string;
}

export interface Schema {
  name: string;
  version: number;
}

/** What every record of one moment and place says of it. */
export interface Observed {
  schema: Schema;
  base_time_days: number;
  /** Absent before the first midnight. */
  date?: string;
  latitude_degrees: number;
  longitude_degrees: number;
}

export interface BodyPosition {
  body: string;
  azimuth_degrees: number;
  altitude_degrees: number;
  ecliptic_longitude_degrees: number;
  sign: string;
}

export interface Positions extends Observed {
  positions: BodyPosition[];
}

/** One line of the panel beside the wheel; what it does not say is absent. */
export interface InterpretationLine {
  heading: string;
  subject: string;
  code?: string;
  body_part?: string;
  sign?: string;
  verdict?: string;
  color?: string;
}

export interface Interpretation extends Observed {
  keep: string;
  lines: InterpretationLine[];
}

export interface Event {
  kind: string;
  base_time_days: number;
  date?: string;
  /** "Pallox rises" */
  description: string;
  bodies: string[];
  /** Seen from the place, if one was asked for: above the horizon and, for a planet, in the dark. */
  seen?: boolean;
  local_clock?: string;
  altitude_degrees?: number;
  azimuth_degrees?: number;
  /** All other members as `veyruna schema events` has them. */
  [member: string]: unknown;
}

export interface Events {
  schema: Schema;
  events: Event[];
}

export interface Interval {
  begin_base_time_days: number;
  begin_date?: string;
  begin_local_clock?: string;
  end_base_time_days: number;
  end_date?: string;
  end_local_clock?: string;
  length_days: number;
  place?: string;
  latitude_degrees?: number;
  longitude_degrees?: number;
  horoscope_command: string;
}

export interface Intervals {
  schema: Schema;
  intervals: Interval[];
}

/** A part of a chart, in its own units: all within a radius of the line from x1, y1 to x2, y2. */
export type Stretch = [x1: number, y1: number, x2: number, y2: number, radius: number];

export interface Mark {
  kind:
    | "body"
    | "star"
    | "background_star"
    | "figure_name"
    | "sign_boundary"
    | "ascendant"
    | "chord"
    | "panel_line";
  name: string;
  /** How readily it is pointed at: the smaller, the more. */
  magnitude: number;
  /** The thing itself: one, or none for a name alone. */
  dots: Stretch[];
  /** The name beside it. */
  letters: Stretch[];
  /** Lines for the pointer, the name first. */
  read_out: string[];
  /** The same in one breath. */
  spoken: string;
}

export interface Marks {
  /** Two sentences on the whole chart. */
  summary: string;
  marks: Mark[];
}

export interface DocumentEntry {
  document: string;
  heading: string;
  summary: string;
  kind: "chart" | "table" | "list" | "label";
  /** Its name in a folder of all documents, and in a name with place and moment; empty for a label. */
  fileName: string;
  fileTitle: string;
  columnHeadingLines: number;
}

/** A stretch of time: to a moment, or for a length such as "3 months". */
export interface Stretched {
  from: Moment;
  to?: Moment;
  for?: string;
  place?: Place;
  placeName?: string;
  /** Whether the clocks are those of the place. */
  local?: boolean;
}

export interface Veyruna {
  readonly version: string;
  readonly documents: readonly DocumentEntry[];
  /** The thirteen places that people know, degrees. */
  readonly places: readonly { name: string; lat: number; long: number }[];
  readonly months: readonly string[];
  readonly eventKinds: readonly { kind: string; summary: string; needsPlace: boolean }[];

  moment(sky: Sky): Result<MomentReading>;
  /** The text of a document, to the byte what the command writes. */
  document(name: string, sky: Sky): Result<string>;
  /** The values of positions, moment, hourly, monthly, daily, yearly or horoscope. */
  record(name: "positions", sky: Sky): Result<Positions>;
  record(name: string, sky: Sky): Result<Observed>;
  interpretation(sky: Sky): Result<Interpretation>;
  /** What a chart, star-map or horoscope, shows where. */
  marks(chart: string, sky: Sky): Result<Marks>;
  /** What happens; kinds as `eventKinds`, all that can be seen where none is named. At most 500000. */
  events(asked: Stretched & { kinds?: string[] }): Result<Events>;
  /** When all of the conditions hold; see the manual's page on preparing a session. At most 500000. */
  search(asked: Stretched & { conditions: string | string[]; first?: number }): Result<Intervals>;
}

/** The engine, made ready once; later calls return the same. */
export function load(): Promise<Veyruna>;
