// node pack_engine.mjs ENGINE.wasm.gz ENGINE.mjs: the packed engine as a module that exports it as
// base64. The same bytes make the same text, whenever and wherever.
import { readFileSync, writeFileSync } from "node:fs";

const [engine, module] = process.argv.slice(2);
writeFileSync(module, `export default '${readFileSync(engine, "base64")}';\n`);
