// What a page says and asks for while it is open: messages, errors, breaches of its content policy and
// requests. A page that is one file asks for nothing but that file.

const ownRequest = /^(file|data|blob|about):/;

export class Watch {
  /** One line each, in the order of what happened. */
  messages = [];
  /** The address of each request that is not the page's own file or made by the page itself. */
  requests = [];
  /** The files that were read. */
  files = [];

  constructor(page) {
    page.on("Runtime.consoleAPICalled", ({ type, args }) => {
      const words = args.map((arg) => arg.value ?? arg.description ?? arg.type).join(" ");
      this.messages.push(`console.${type}: ${words}`);
    });
    page.on("Runtime.exceptionThrown", ({ exceptionDetails: { text, exception } }) => {
      this.messages.push(`${text} ${exception?.description ?? ""}`);
    });
    page.on("Log.entryAdded", ({ entry }) => {
      this.messages.push(`${entry.source} ${entry.level}: ${entry.text} ${entry.url ?? ""}`);
    });
    page.on("Audits.issueAdded", ({ issue }) => {
      this.messages.push(`${issue.code}: ${JSON.stringify(issue.details)}`);
    });
    page.on("Page.javascriptDialogOpening", ({ type, message }) => {
      this.messages.push(`${type}: ${message}`);
      page.send("Page.handleJavaScriptDialog", { accept: true });
    });
    page.on("Network.requestWillBeSent", ({ request }) => this.#take(request.url));
    page.on("Network.webSocketCreated", ({ url }) => this.#take(url));
    page.on("Network.webTransportCreated", ({ url }) => this.#take(url));
  }

  #take(url) {
    if (url.startsWith("file:")) this.files.push(url.replace(/#.*/, ""));
    if (!ownRequest.test(url)) this.requests.push(url);
  }

  /** What a page that is one file must not have said or asked for; empty where all is well. */
  faults(url) {
    const file = url.replace(/#.*/, "");
    const others = this.files.filter((read) => read !== file);
    return [...this.messages, ...this.requests, ...others];
  }
}
