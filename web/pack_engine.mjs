// node pack_engine.mjs ENGINE.wasm ENGINE.mjs: the engine as a module that exports its text: base64 of
// what gzip makes of it. The same bytes make the same text, whenever and wherever.
import { readFileSync, writeFileSync } from 'node:fs';
import { gzipSync } from 'node:zlib';

const [engine, module] = process.argv.slice(2);
const packed = gzipSync(readFileSync(engine), { level: 9 });
writeFileSync(module, `export default '${packed.toString('base64')}';\n`);
