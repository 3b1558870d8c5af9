// The sky of Veyruna for scripts: what this module answers is calculated by the very engine of the
// program, which it carries inside. Nothing is loaded from anywhere and nothing is kept.
import packedEngine from "./engine.mjs";

/** The bytes of a gzipped file that stands in a text as base64. */
async function unpacked(base64) {
  const packed = Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0));
  const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream).arrayBuffer();
}

/** One running engine: its memory, and what it last wrote to standard error. */
class Engine {
  #module;
  #exports;
  #complaint = "";

  constructor(module) {
    this.#module = module;
    this.#start();
  }

  #start() {
    const memory = () => this.#exports.memory.buffer;
    const system = {
      fd_write: (_file, vectors, count, written) => {
        const view = new DataView(memory());
        let total = 0;
        for (let i = 0; i < count; i += 1) {
          const begin = view.getUint32(vectors + 8 * i, true);
          const length = view.getUint32(vectors + 8 * i + 4, true);
          this.#complaint += new TextDecoder().decode(new Uint8Array(memory(), begin, length));
          total += length;
        }
        view.setUint32(written, total, true);
        return 0;
      },
    };
    // Whatever else a C library may want is not here, and says so.
    const others = { get: (known, name) => known[name] ?? (() => 52) };
    const imports = {};
    for (const { module } of WebAssembly.Module.imports(this.#module)) {
      imports[module] = new Proxy(system, others);
    }
    this.#exports = new WebAssembly.Instance(this.#module, imports).exports;
    this.#exports._initialize();
  }

  /** The answer's first character and its rest. */
  answer(question) {
    const bytes = new TextEncoder().encode(question);
    const room = this.#exports.veyruna_room(bytes.length);
    new Uint8Array(this.#exports.memory.buffer, room, bytes.length).set(bytes);
    const length = this.#exports.veyruna_answer();
    const text = new Uint8Array(this.#exports.memory.buffer, this.#exports.veyruna_text(), length);
    return new TextDecoder().decode(text);
  }

  /** The same as a result. An engine that stops in the middle is put away and another one started. */
  ask(question) {
    let answer;
    try {
      answer = this.answer(question);
    } catch (stop) {
      const error = this.#complaint.trim() || `the engine stopped: ${stop.message}`;
      this.#complaint = "";
      this.#start();
      return { ok: false, error };
    }
    const rest = answer.slice(1);
    if (answer[0] === "!") {
      return { ok: false, error: rest };
    }
    return { ok: true, value: answer[0] === ">" ? JSON.parse(rest) : rest };
  }
}

/** What a value is as a text; numbers of a moment are days. */
function textOf(name, value) {
  const isDays = typeof value === "number" && ["moment", "from", "to"].includes(name);
  return (isDays ? "@" : "") + String(value);
}

/** A question of names and values; what is undefined or null is not said. */
function questionOf(ask, values) {
  const question = new URLSearchParams({ ask });
  for (const [name, value] of Object.entries(values)) {
    for (const one of Array.isArray(value) ? value : [value]) {
      if (one !== undefined && one !== null) {
        question.append(name, textOf(name, one));
      }
    }
  }
  return question.toString();
}

/** What the almanac is asked, its place and names as the engine has them. */
function almanacValues({ place, placeName, ...rest }) {
  return { ...rest, ...place, ...(placeName === undefined ? {} : { place_name: placeName }) };
}

/** The answers; see veyruna.d.ts. */
class Veyruna {
  #engine;

  constructor(engine) {
    this.#engine = engine;
    Object.assign(this, engine.ask("ask=about").value);
    Object.freeze(this);
  }

  /** Even what cannot be made a text is an error, not an exception. */
  #ask(ask, makeValues) {
    let question;
    try {
      question = questionOf(ask, makeValues());
    } catch (problem) {
      return { ok: false, error: `the question cannot be read: ${problem.message}` };
    }
    return this.#engine.ask(question);
  }

  moment(sky) {
    return this.#ask("moment", () => ({ ...sky }));
  }

  document(name, sky) {
    return this.#ask("document", () => ({ name, ...sky }));
  }

  record(name, sky) {
    return this.#ask("record", () => ({ name, ...sky }));
  }

  interpretation(sky) {
    return this.record("horoscope", sky);
  }

  marks(name, sky) {
    return this.#ask("marks", () => ({ name, ...sky }));
  }

  events(asked) {
    return this.#ask("events", () => almanacValues(asked));
  }

  search(asked) {
    return this.#ask("search", () => almanacValues(asked));
  }
}

let loading;

/** The engine, made ready once; later calls return the same. */
export function load() {
  loading ??= (async () => {
    const engine = new Engine(await WebAssembly.compile(await unpacked(packedEngine)));
    return new Veyruna(engine);
  })();
  return loading;
}
